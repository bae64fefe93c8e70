#include "filerow.h"

#include "derived.h"
#include "facts.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

struct Section
{
    QLatin1StringView status;
    QLatin1StringView title;
};

constexpr std::array sections{Section{"new"_L1, "To review"_L1}, Section{"in_review"_L1, "In review"_L1},
                              Section{"reviewed"_L1, "Reviewed"_L1}};

FileRowCount badge(qint64 number, Tone::Value tone, const QString &help)
{
    return {QString::number(number), {}, tone, help};
}

FileRowCount symbol(const QString &name, Tone::Value tone, const QString &help)
{
    return {{}, name, tone, help};
}

bool anythingMatched(const FileItem &file)
{
    return file.refs && std::any_of(file.refs->cbegin(), file.refs->cend(),
                                    [](const Ref &ref) { return ref.matched.value_or(0) >= 1; });
}

} // namespace

FileRow fileRow(const FileItem &file)
{
    return {file.id,
            fileSection(file.status),
            displayTitle(file),
            fileRowDetails(file),
            file.thumb.value_or(QString()),
            fileRowCount(file),
            false};
}

FileRowCount fileRowCount(const FileItem &file)
{
    const Tally tally = file.tally.value_or(Tally{});
    const qint64 issues = tally.issues.value_or(0);
    const qint64 open = tally.open.value_or(0);
    if (file.status == "reviewed"_L1)
        return symbol(u"checkmark.circle.fill"_s, Tone::Reviewed, u"Reviewed"_s);
    if (issues >= 1)
        return badge(issues, Tone::Issue, counted(issues, u"real issue"_s));
    if (open >= 1)
        return badge(open, Tone::LookAt, QString::number(open) + u" to look at"_s);
    if (anythingMatched(file))
        return symbol(u"equal.circle"_s, Tone::Neutral, u"No differences"_s);
    return symbol(u"questionmark.circle"_s, Tone::Neutral, u"Nothing of ours was found to compare it with"_s);
}

QString fileRowDetails(const FileItem &file)
{
    QStringList facts{file.supplier.value_or(QString()), file.po.value_or(QString())};
    if (const auto pages = pageCount(file))
        facts.append(QString::number(*pages) + u" p"_s);
    return joinedFacts(facts);
}

QString fileSection(const QString &status)
{
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [&status](const Section &section) { return section.status == status; });
    return found == sections.end() ? QString() : QString(found->title);
}

QList<qsizetype> listOrder(const QList<FileRow> &rows)
{
    QList<qsizetype> order;
    order.reserve(rows.size());
    for (const Section &section : sections) {
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (rows[i].section == section.title)
                order.append(i);
        }
    }
    return order;
}

} // namespace vexal
