#include "pagereview.h"

#include "compare.h"
#include "derived.h"
#include "facts.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

FindingRow beginningGroup(FindingRow row, const Finding &finding)
{
    row.group = groupTitle(finding.kind);
    row.reference = referencePhrase(finding.against);
    return row;
}

/// Cards by the title of their group; the groups in the order in which they were first asked for.
class Groups
{
public:
    void add(const Finding &finding, const FindingRow &row)
    {
        const QString title = groupTitle(finding.kind);
        const auto known = m_placeOf.constFind(title);
        if (known != m_placeOf.cend()) {
            m_groups[*known].append(row);
            return;
        }
        m_placeOf.insert(title, m_groups.size());
        m_groups.append({beginningGroup(row, finding)});
    }

    QList<FindingRow> rows() const
    {
        QList<FindingRow> rows;
        for (const auto &group : m_groups)
            rows += group;
        return rows;
    }

private:
    QHash<QString, qsizetype> m_placeOf;
    QList<QList<FindingRow>> m_groups;
};

bool isCounted(const Finding &finding, qint64 index, const QString &role)
{
    return finding.page == index && finding.against == role;
}

/// What has the focus on the canvas although the inspector does not count it.
bool isFocusedElsewhere(const Finding &finding, qint64 index, const QString &role, const QString &focus)
{
    return finding.id == focus && !isCounted(finding, index, role) && drawnOn(finding, index, role);
}

PageReview reviewOf(const Page &page, const QString &role)
{
    PageReview review;
    review.title = u"Page "_s + pageLabel(page);
    review.readFromPicture = page.ocr.value_or(false);
    review.emptyLine = emptyLine(role, rolesOffered(page).contains(role));
    return review;
}

qsizetype openOn(const FileDetail &detail, qint64 index, const QString &role)
{
    return std::count_if(detail.findings.cbegin(), detail.findings.cend(), [&](const Finding &finding) {
        return isCounted(finding, index, role) && !isSettled(finding) && finding.state == "open"_L1;
    });
}

} // namespace

QString groupTitle(const QString &kind)
{
    static const QHash<QString, QString> titles{
        {u"words"_s, u"Words"_s},          {u"expected"_s, u"Our edit"_s},  {u"breaks"_s, u"Line breaks"_s},
        {u"hidden"_s, u"Under the art"_s}, {u"fonts"_s, u"Fonts"_s},        {u"size"_s, u"Size"_s},
        {u"picture"_s, u"Art"_s},          {u"barcode"_s, u"Barcode"_s},    {u"spots"_s, u"Spot colors"_s},
        {u"pass"_s, u"Passed"_s},          {u"missing_page"_s, u"Pages"_s}, {u"extra_page"_s, u"Pages"_s}};
    return titles.value(kind, u"Other"_s);
}

QString foundLine(qsizetype findings)
{
    return findings == 0 ? u"Matches"_s : QString::number(findings) + u" found"_s;
}

QString summaryLine(qsizetype settled, qsizetype expected)
{
    if (expected == settled)
        return QString::number(settled) + u" of our edit"_s + (settled == 1 ? u""_s : u"s"_s) + u" came through"_s;
    if (expected > 0)
        return QString::number(settled) + u" checked and fine"_s;
    return counted(settled, u"check"_s) + u" passed"_s;
}

QString emptyLine(const QString &role, bool matched)
{
    if (!matched)
        return u"No file of ours was found to compare with this page."_s;
    return u"The words, breaks, fonts and art match "_s + referencePhrase(role) + u'.';
}

FoundOnPage foundOnPage(const FileDetail &detail, qint64 index, const QString &role, const Telling &telling)
{
    FoundOnPage found;
    Groups groups;
    QList<FindingRow> elsewhere;
    qsizetype counted = 0;
    qsizetype expected = 0;
    for (const Finding &finding : detail.findings) {
        if (isFocusedElsewhere(finding, index, role, telling.focus))
            elsewhere.append(beginningGroup(findingRow(finding, detail.file, telling), finding));
        if (!isCounted(finding, index, role))
            continue;
        const FindingRow row = findingRow(finding, detail.file, telling);
        if (isSettled(finding)) {
            found.settled.append(row);
            expected += finding.kind == "expected"_L1 ? 1 : 0;
        } else {
            groups.add(finding, row);
            ++counted;
        }
    }
    found.cards = groups.rows() + elsewhere;
    found.review = reviewOf(detail.file.pages.value_or(QList<Page>()).value(index), role);
    found.review.found = foundLine(counted);
    found.review.empty = found.cards.isEmpty() && found.settled.isEmpty();
    if (!found.settled.isEmpty())
        found.review.summary = summaryLine(found.settled.size(), expected);
    return found;
}

QList<OtherPage> otherPages(const FileDetail &detail, qint64 index, const QString &against)
{
    QList<OtherPage> others;
    const QList<Page> pages = detail.file.pages.value_or(QList<Page>());
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const qsizetype open = i == index ? 0 : openOn(detail, i, roleChosen(rolesOffered(pages[i]), against));
        if (open > 0)
            others.append({QString::number(i), u"Page "_s + pageLabel(pages[i]),
                           QString::number(open) + u" to look at"_s, int(i)});
    }
    return others;
}

} // namespace vexal
