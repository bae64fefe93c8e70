#include "titles.h"

#include "bread/leaves.h"
#include "filing.h"
#include "people.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

FileItem item()
{
    FileItem file;
    file.id = u"bread"_s;
    file.po = u"PO 2219"_s;
    file.title = u"Bread for the Giant"_s;
    file.component = u"Cover"_s;
    file.supplier = u"Ostrel Print"_s;
    file.filename = u"2219-bread-cover-proof3.pdf"_s;
    file.kind = u"cover"_s;
    file.sender = u"Anneke"_s;
    file.received = moment(17, 17, 45);
    file.created = moment(18, 8, 2);
    file.links = filed(u"br2219p3"_s, u"po-2219"_s, u"Bread-cover-4th.indd"_s);
    file.refs = {sent(u"Bread-cover-4th.pdf"_s, u"br2219s"_s), printed(u"Bread-cover-3rd-print.pdf"_s, u"br2219l"_s)};
    file.summary = u"Spot gold lost on the medal and one title in two words; 3 of our edits came through."_s;
    file.status = u"reviewed"_s;
    file.status_by = who::mira();
    file.status_at = moment(18, 10, 31);
    file.rev = 11;
    return file;
}

QList<Note> notes()
{
    Note medalNote =
        note(u"n-61"_s, 0, who::mira(), moment(18, 10, 13), u"The prize asks for real gold. Send it back."_s);
    medalNote.finding_id = u"bread-0-1"_s;
    Note flour = note(u"n-62"_s, 3, who::anselm(), moment(18, 10, 25), u"Nine sacks: yes, Petra counted."_s);
    flour.x = 0.3;
    flour.y = 0.503;
    flour.resolved = 1;
    flour.resolved_by = who::anselm();
    return {medalNote, flour};
}

} // namespace

FilePlan breadForTheGiant()
{
    return {item(), {bread::front(), bread::insideFront(), bread::insideBack(), bread::back()}, notes()};
}

} // namespace vexal::sample
