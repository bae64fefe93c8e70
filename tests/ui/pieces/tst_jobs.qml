import QtQuick
import QtTest
import Vexal.Pieces
import Vexal.Test

TestCase {
    id: test
    name: "Jobs"
    when: windowShown
    visible: true
    width: 260
    height: 400

    Component {
        id: block
        JobBlock {
            width: 240
            title: "Sync"
        }
    }
    Component {
        id: list
        StepsList {
            property var given: []
            width: 240
            steps: given
        }
    }
    Component {
        id: result
        ResultBlock {
            width: 240
        }
    }
    SignalSpy {
        id: stopped
        signalName: "stopRequested"
    }

    function init() {
        Appearance.resting = true;
    }
    function cleanup() {
        Appearance.resting = false;
    }
    function collect(item, wanted, found): var {
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i];
            if (!child.visible)
                continue;
            if (wanted(child))
                found.push(child);
            collect(child, wanted, found);
        }
        return found;
    }
    /// What can be read in it, from top to bottom.
    function words(item): var {
        return collect(item, child => child.lineHeightMode !== undefined && child.text.length > 0, []).map(label => label.text);
    }
    function symbols(item): var {
        return collect(item, child => child.bold !== undefined && child.name !== undefined, []).map(symbol => symbol.name);
    }
    function button(item): Item {
        return collect(item, child => child.title === "Stop", [])[0] ?? null;
    }

    function test_inLineItSaysWhatItWaitsFor() {
        const piece = createTemporaryObject(block, test, {row: Rows.job("queued")});
        compare(words(piece), ["In line", "Waiting for the Mac mini"]);
        compare(button(piece), null);
    }

    function test_runningItTellsWhoIsAtWorkAndAtWhat() {
        const piece = createTemporaryObject(block, test, {row: Rows.job("running", ["Reading mail", "Filing"])});
        const lines = collect(piece, child => child.who === "Claude", []);
        compare(lines.length, 1);
        verify(lines[0].text.startsWith("Claude is "));
        const marks = collect(piece, child => child.working === true, []);
        compare(marks.length, 1);
        compare(marks[0].size, 15);
        compare(words(piece), ["Reading mail", "Filing", "Started by Teo 3 min ago", "Stop"]);
        compare(symbols(piece), ["checkmark.circle.fill"]);
    }

    function test_stuckItSaysWhatToDo() {
        const piece = createTemporaryObject(block, test, {row: Rows.job("stuck")});
        compare(words(piece), ["The Mac mini stopped answering", "It may be asleep or off Wi-Fi. Press Sync to try again, or Stop.", "Stop"]);
        compare(symbols(piece), ["exclamationmark.triangle.fill"]);
    }

    function test_aJobThatIsOverShowsNothing_data() {
        return [{tag: "done"}, {tag: "failed"}, {tag: "stopped"}, {tag: "unheard of"}];
    }
    function test_aJobThatIsOverShowsNothing(row) {
        const piece = createTemporaryObject(block, test, {row: Rows.job(row.tag)});
        compare(words(piece), []);
        compare(piece.height, 0);
    }

    function test_stopAsksOnceAndThenSaysSo_data() {
        return [{tag: "running"}, {tag: "stuck"}];
    }
    function test_stopAsksOnceAndThenSaysSo(row) {
        const piece = createTemporaryObject(block, test, {row: Rows.job(row.tag)});
        stopped.target = piece;
        stopped.clear();
        mouseClick(button(piece));
        compare(stopped.count, 1);
        compare(stopped.signalArguments[0][0], "j");
        piece.row = Rows.job(row.tag, [], true);
        compare(button(piece), null);
        verify(words(piece).includes("Stopping."));
    }

    function test_theLastFourStepsStandUnderTheCountOfTheRest_data() {
        return [
            {tag: "none", steps: [], shown: []},
            {tag: "four", steps: ["a", "b", "c", "d"], shown: ["a", "b", "c", "d"]},
            {tag: "five", steps: ["a", "b", "c", "d", "e"], shown: ["1 earlier step", "b", "c", "d", "e"]},
            {tag: "six", steps: ["a", "b", "c", "d", "e", "f"], shown: ["2 earlier steps", "c", "d", "e", "f"]}
        ];
    }
    function test_theLastFourStepsStandUnderTheCountOfTheRest(row) {
        const piece = createTemporaryObject(list, test, {given: row.steps});
        compare(words(piece), row.shown);
        compare(symbols(piece).length, Math.min(row.steps.length, 4));
        compare(piece.spacing, 5);
    }

    function test_onlyTheLastStepOfALiveListIsUnderWay() {
        const piece = createTemporaryObject(list, test, {given: ["a", "b"], live: true});
        compare(symbols(piece), ["checkmark.circle.fill"]);
        const spinners = collect(piece, child => child.turning !== undefined, []);
        compare(spinners.length, 1);
        compare(spinners[0].size, 10);
        piece.live = false;
        compare(symbols(piece).length, 2);
    }

    function test_theHeadingSaysHowItEnded_data() {
        return [
            {tag: "done", check: [], title: "Done", symbol: "checkmark.circle.fill", tint: "reviewed"},
            {tag: "done, to be looked at", status: "done", check: ["PO 7"], title: "Needs a look", symbol: "exclamationmark.circle.fill", tint: "lookAt"},
            {tag: "stopped", check: [], title: "Stopped", symbol: "stop.circle.fill", tint: ""},
            {tag: "failed", check: [], title: "Didn't finish", symbol: "xmark.circle.fill", tint: "issue"}
        ];
    }
    function test_theHeadingSaysHowItEnded(row) {
        const piece = createTemporaryObject(result, test, {row: Rows.result(row.status ?? row.tag, row.check)});
        compare(words(piece).slice(0, 2), [row.title, "By Teo · 1 min ago"]);
        compare(symbols(piece)[0], row.symbol);
        const heading = collect(piece, child => child.name === row.symbol && child.bold !== undefined, [])[0];
        compare(heading.size, 15);
        if (row.tint)
            compare(String(heading.color), String(Theme[row.tint].plain));
        compare(piece.Accessible.name, row.title);
    }

    function test_whatItBroughtAboutStandsLineByLine() {
        const piece = createTemporaryObject(result, test, {row: Rows.result("done", ["PO 7 has two proofs"])});
        compare(words(piece).slice(2), ["2 new files", "Filed to Drive", "PO 7 has two proofs"]);
        compare(symbols(piece).slice(1), ["checkmark", "folder", "exclamationmark"]);
        compare(piece.spacing, 8);
    }
}
