#include "pagestrip.h"

#include "derived.h"
#include "facts.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString spoken(const QString &label, const PageTally &tally)
{
    QStringList parts{u"Page "_s + label};
    if (tally.issues > 0)
        parts.append(counted(tally.issues, u"real issue"_s));
    else if (tally.open > 0)
        parts.append(u"%1 to look at"_s.arg(tally.open));
    if (tally.notes > 0)
        parts.append(counted(tally.notes, u"note"_s));
    return parts.join(u", "_s);
}

} // namespace

PageTally pageTally(const FileDetail &detail, qint64 index)
{
    PageTally tally;
    for (const Finding &finding : detail.findings) {
        if (finding.page != index || isSettled(finding))
            continue;
        tally.open += finding.state == "open"_L1 && finding.severity != "low"_L1;
        tally.issues += finding.state == "issue"_L1;
    }
    for (const Note &note : detail.comments)
        tally.notes += note.page == index && !isResolved(note);
    return tally;
}

QList<PageCell> pageCells(const FileDetail &detail)
{
    const QList<Page> pages = detail.file.pages.value_or(QList<Page>());
    QList<PageCell> cells;
    cells.reserve(pages.size());
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const Page &page = pages[i];
        const PageTally tally = pageTally(detail, i);
        const QString label = pageLabel(page);
        cells.append({QString::number(i), label, page.thumb.value_or(page.img.value_or(QString())), aspect(page),
                      tally.issues, tally.open, tally.notes, spoken(label, tally)});
    }
    return cells;
}

} // namespace vexal
