#include "titles.h"

#include "filing.h"
#include "fox/country.h"
#include "people.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

FileItem item()
{
    FileItem file;
    file.id = u"fox"_s;
    file.po = u"PO 2231"_s;
    file.title = u"The Lantern Fox"_s;
    file.component = u"Interior"_s;
    file.supplier = u"Ostrel Print"_s;
    file.filename = u"2231-lantern-fox-interior-proof2.pdf"_s;
    file.kind = u"interior"_s;
    file.sender = u"Anneke"_s;
    file.received = moment(18, 9, 20);
    file.created = moment(18, 9, 31);
    file.links = filed(u"fx2231p2"_s, u"po-2231"_s, u"Lantern-Fox-interior-3rd.indd"_s);
    file.refs = {
        sent(u"Lantern-Fox-interior-3rd.pdf"_s, u"fx2231s"_s),
        printed(u"Lantern-Fox-interior-2nd-print.pdf"_s, u"fx2231l"_s, u"Pages 3 and 10 are new in this printing."_s)};
    file.summary = u"1 wrong word, 2 pictures, 1 line break and 1 font to look at; 5 of our edits came through."_s;
    file.status = u"in_review"_s;
    file.status_by = who::mira();
    file.status_at = moment(18, 13, 50);
    file.rev = 14;
    return file;
}

QList<Note> notes()
{
    Note moon = note(u"n-1"_s, 8, who::teo(), moment(20, 15, 24),
                     u"Moon looks a touch more yellow here. Ask for a fresh proof?"_s);
    moon.x = 0.74;
    moon.y = 0.125;
    Note gutter = note(u"n-2"_s, 8, who::lin(), moment(19, 16, 20), u"Check the gutter once more."_s);
    gutter.resolved = 1;
    gutter.resolved_by = who::mira();
    Note gate = note(u"n-3"_s, 3, who::mira(), moment(18, 14, 2),
                     u"Sol would like the gate a shade darker, but not in this printing."_s);
    gate.edited = moment(18, 14, 9);
    Note grass = note(u"n-4"_s, 3, who::anselm(), moment(18, 14, 30),
                      u"Is the lantern meant to stand in the grass, or to float?"_s);
    grass.x = 0.516;
    grass.y = 0.688;
    Note pause = note(u"n-5"_s, 4, who::teo(), moment(19, 11, 14),
                      u"Ida wants the three lines back: the joke needs its pause."_s);
    pause.finding_id = u"fox-4-1"_s;
    const Note whole = note(u"n-6"_s, {}, who::mira(), moment(18, 13, 52),
                            u"Third printing: please read the imprint page word by word."_s);
    return {moon, gutter, gate, grass, pause, whole};
}

} // namespace

FilePlan lanternFox()
{
    return {item(), fox::frontMatter() + fox::setOut() + QList{fox::theLine()} + fox::waitUp() + fox::comeHome(),
            notes()};
}

} // namespace vexal::sample
