#include "titles.h"

#include "filing.h"
#include "people.h"
#include "slow-post/leaves.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// Our document and the folder of this order were not found.
Links slowLinks()
{
    Links links;
    links.gmail = u"https://mail.example/message/sp2229p1"_s;
    links.drive = u"https://drive.example/file/sp2229p1"_s;
    return links;
}

FileItem item()
{
    FileItem file;
    file.id = u"slowpost"_s;
    file.po = u"PO 2229"_s;
    file.title = u"The Extraordinarily Slow Post: Nine Letters, Two Snails and One Very Patient Balloon"_s;
    file.component = u"Fold-out map and letters"_s;
    file.supplier = u"Ostrel Print"_s;
    file.filename = u"2229-slow-post-map-and-letters-proof1.pdf"_s;
    file.kind = u"book"_s;
    file.sender = u"Anneke"_s;
    file.received = moment(17, 16, 10);
    file.created = moment(17, 16, 22);
    file.links = slowLinks();
    file.refs = {sent(u"Slow-Post-map-and-letters.pdf"_s, u"sp2229s"_s, u"The proof has one page more than ours."_s)};
    file.summary = u"Hidden words on the map, a page cut too small and a page that is not ours."_s;
    file.status = u"in_review"_s;
    file.status_by = who::lin();
    file.status_at = moment(19, 9, 40);
    file.rev = 9;
    return file;
}

QList<Note> notes()
{
    Note answer =
        note(u"n-41"_s, 0, who::lin(), moment(19, 9, 50), u"Tam’s snail is plum. She has been plum for three books."_s);
    answer.finding_id = u"slowpost-0-2"_s;
    answer.resolved = 1;
    answer.resolved_by = who::anselm();
    Note road = note(u"n-42"_s, 0, who::anselm(), moment(19, 10, 30),
                     u"Anneke says that the fold runs exactly through the mill, so whatever stands on the dotted road "
                     u"between the mill and Long Pond will be "
                     u"creased after the first unfolding. Could we ask them to move the fold 6 mm to the left? Then it "
                     u"would fall on plain grass, and nobody "
                     u"would have to draw the snail again."_s);
    road.x = 0.37;
    road.y = 0.62;
    road.edited = moment(19, 10, 41);
    return {answer, road};
}

} // namespace

FilePlan slowPost()
{
    return {item(),
            {slow::map(), slow::letterTwo(), slow::letterThree(), slow::controlPage()},
            notes(),
            QRectF(780, 220, 900, 1157)};
}

} // namespace vexal::sample
