#include "titles.h"

#include "filing.h"
#include "people.h"
#include "tidepool/cards.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

QList<Leaf> deck()
{
    const Change six{.kind = u"words"_s,
                     .severity = u"medium"_s,
                     .title = u"“five rows” reads “fife rows”"_s,
                     .before = u"five rows of six."_s,
                     .after = u"fife rows of six."_s,
                     .on = {u"rules:fife"_s},
                     .ours = {u"rules:five"_s},
                     .make = [](Sheet &s) { s.respell(u"rules"_s, u"five"_s, u"fife"_s); },
                     .verdict = {u"issue"_s, who::mira(), moment(17, 11, 32)}};
    const Change sergeant{.kind = u"words"_s,
                          .severity = u"high"_s,
                          .title = u"“Sergeant” reads “Seargent”"_s,
                          .before = u"Sergeant fish"_s,
                          .after = u"Seargent fish"_s,
                          .on = {u"name:Seargent"_s},
                          .ours = {u"name:Sergeant"_s},
                          .make = [](Sheet &s) { s.respell(u"name"_s, u"Sergeant"_s, u"Seargent"_s); },
                          .verdict = {u"issue"_s, who::mira(), moment(17, 11, 38)}};
    const tide::Motif dark{u"Starfish"_s, starfish, {ink(0xD9603F), ink(0xF3BC88), ink(0xA03A24)}, {}};
    const Change darker{.kind = u"picture"_s,
                        .severity = u"low"_s,
                        .title = u"The starfish is a little darker by night"_s,
                        .on = {u"creature"_s},
                        .make = [dark](Sheet &s) { s.replace(u"creature"_s, tide::creature(dark, true)); },
                        .verdict = {u"fine"_s, who::teo(), moment(17, 14, 10)}};
    QList<Leaf> leaves{{.label = {}, .ours = tide::backOfCard()},
                       {.label = {}, .ours = tide::rules(), .changes = {six}, .flat = true}};
    int number = 1;
    for (const tide::Motif &motif : tide::motifs())
        for (const bool night : {false, true})
            leaves.append({.label = {}, .ours = tide::motifCard(motif, night, number++)});
    leaves[3].changes = {darker};
    leaves[18].changes = {sergeant};
    return leaves;
}

FileItem item()
{
    FileItem file;
    file.id = u"tidepool"_s;
    file.po = u"PO 2224"_s;
    file.title = u"Tidepool Memory"_s;
    file.component = u"cards"_s;
    file.supplier = u"Tarnwick Cards"_s;
    file.filename = u"LH2224-tidepool-deck.pdf"_s;
    file.kind = u"cards"_s;
    file.sender = u"Silje"_s;
    file.received = moment(16, 9, 30);
    file.created = moment(16, 9, 52);
    file.links = filed(u"tp2224p1"_s, u"po-2224"_s, u"Tidepool-deck.indd"_s);
    file.refs = {sent(u"Tidepool-deck.pdf"_s, u"tp2224s"_s)};
    file.summary = u"One name, one color and one rule; all judged."_s;
    file.status = u"reviewed"_s;
    file.status_by = who::teo();
    file.status_at = moment(20, 13, 40);
    file.rev = 21;
    return file;
}

QList<Note> notes()
{
    const Note thanks =
        note(u"n-51"_s, {}, who::teo(), moment(20, 13, 38), u"Silje will mend card 17 before the run. Good to go."_s);
    Note fish =
        note(u"n-52"_s, 18, who::mira(), moment(17, 11, 40), u"The name is on the box as well, so both or neither."_s);
    fish.finding_id = u"tidepool-18-1"_s;
    return {thanks, fish};
}

} // namespace

FilePlan tidepool()
{
    return {item(), deck(), notes()};
}

} // namespace vexal::sample
