pragma Singleton
import QtQuick

/// Which hint is wanted, and since when. A hint waits until the pointer has rested, the next one nearby comes at once.
QtObject {
    id: root

    /// How long the pointer rests before the first hint, and how long the next one comes at once, in milliseconds.
    property int delay: 600
    property int grace: 300

    /// What the hint shown is about, and its words; nothing and empty while none is shown.
    property Item target: null
    property string text: ""

    property Item _offered: null
    property string _offeredText: ""
    // A hint was shown a moment ago.
    property bool _warm: false

    function offer(item: Item, words: string) {
        root._offered = item;
        root._offeredText = words;
        if (root.target || root._warm)
            root._show();
        else
            root._wait.restart();
    }

    /// Shows a hint at once, for somebody who asked for it without a pointer.
    function tell(item: Item, words: string) {
        root.offer(item, words);
        root._wait.stop();
        root._show();
    }

    function withdraw(item: Item) {
        if (root._offered !== item)
            return;
        root._offered = null;
        root._wait.stop();
        if (root.target) {
            root._warm = true;
            root._recent.restart();
        }
        root.target = null;
        root.text = "";
    }

    function _show() {
        root.text = root._offeredText;
        root.target = root._offeredText.length > 0 ? root._offered : null;
    }

    readonly property Timer _wait: Timer {
        interval: root.delay
        onTriggered: root._show()
    }
    readonly property Timer _recent: Timer {
        interval: root.grace
        onTriggered: root._warm = false
    }
}
