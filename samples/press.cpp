#include "press.h"

#include "leaf.h"

#include <QTextStream>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

bool isQuiet(const Finding &finding)
{
    return finding.kind == "expected"_L1 || finding.kind == "pass"_L1;
}

Counts countsOf(const QList<Finding> &findings, qsizetype pages)
{
    Counts counts{pages, 0, 0, 0, 0, 0};
    for (const Finding &finding : findings) {
        if (finding.kind == "expected"_L1)
            ++*counts.expected;
        if (isQuiet(finding))
            continue;
        ++*counts.shown;
        ++*(finding.severity == "high"_L1 ? counts.high : finding.severity == "medium"_L1 ? counts.medium : counts.low);
    }
    return counts;
}

Tally tallyOf(const QList<Finding> &findings)
{
    Tally tally{0, 0, findings.size()};
    for (const Finding &finding : findings) {
        *tally.open += !isQuiet(finding) && finding.state == "open"_L1 ? 1 : 0;
        *tally.issues += finding.state == "issue"_L1 ? 1 : 0;
    }
    return tally;
}

/// How many of the supplier's pages have a page of that role.
qint64 matched(const QList<Page> &pages, const QString &role)
{
    return std::count_if(pages.begin(), pages.end(),
                         [&role](const Page &page) { return page.refs && page.refs->contains(role); });
}

FileDetail bind(const FilePlan &plan, const QList<PrintedLeaf> &leaves)
{
    FileDetail detail{plan.file, {}, plan.notes};
    FileItem &file = detail.file;
    file.pages.emplace();
    for (const PrintedLeaf &leaf : leaves) {
        file.pages->append(leaf.page);
        qint64 ord = 0;
        for (Finding finding : leaf.findings) {
            finding.id = u"%1-%2-%3"_s.arg(file.id).arg(leaf.page.i).arg(++ord);
            finding.file_id = file.id;
            finding.page = leaf.page.i;
            finding.ord = ord;
            detail.findings.append(finding);
        }
    }
    for (Note &note : detail.comments)
        note.file_id = file.id;
    file.key = leaves.first().page.img;
    file.thumb = leaves.first().cover;
    file.page_count = leaves.size();
    file.counts = countsOf(detail.findings, leaves.size());
    file.tally = tallyOf(detail.findings);
    if (file.refs)
        for (Ref &ref : *file.refs) {
            ref.matched = matched(*file.pages, ref.role);
            if (!ref.page_count)
                ref.page_count = ref.matched;
        }
    return detail;
}

/// One leaf to print: of which plan, and which of its leaves.
struct Order
{
    qsizetype plan;
    qsizetype leaf;
};

QList<QList<PrintedLeaf>> printAll(const QList<FilePlan> &plans, const QString &folder)
{
    QList<QList<PrintedLeaf>> out;
    std::vector<Order> orders;
    for (qsizetype plan = 0; plan < plans.size(); ++plan) {
        out.append(QList<PrintedLeaf>(plans.at(plan).leaves.size()));
        for (qsizetype leaf = 0; leaf < plans.at(plan).leaves.size(); ++leaf)
            orders.push_back({plan, leaf});
    }
    std::vector<PrintedLeaf> printed(orders.size());
    std::atomic<size_t> next = 0;
    const auto work = [&] {
        for (size_t i = next++; i < orders.size(); i = next++)
            printed[i] = printLeaf(plans.at(orders[i].plan), orders[i].leaf, folder);
    };
    std::thread other(work);
    work();
    other.join();
    for (size_t i = 0; i < orders.size(); ++i)
        out[orders[i].plan][orders[i].leaf] = printed[i];
    return out;
}

bool allWritten(const QList<QList<PrintedLeaf>> &files)
{
    bool all = true;
    for (const QList<PrintedLeaf> &leaves : files)
        for (const PrintedLeaf &leaf : leaves)
            for (const QString &key : leaf.unwritten) {
                QTextStream(stderr) << "Cannot write the picture " << key << Qt::endl;
                all = false;
            }
    return all;
}

} // namespace

std::optional<QList<FileDetail>> press(const QList<FilePlan> &plans, const QString &folder)
{
    const QList<QList<PrintedLeaf>> files = printAll(plans, folder);
    if (!allWritten(files))
        return {};
    QList<FileDetail> details;
    for (qsizetype i = 0; i < plans.size(); ++i)
        details.append(bind(plans.at(i), files.at(i)));
    return details;
}

} // namespace vexal::sample
