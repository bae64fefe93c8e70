#include "synctexts.h"

#include "counted.h"
#include "derived.h"

#include <functional>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

QString from(const FileItem &file)
{
    return file.supplier ? u" from "_s + *file.supplier : QString();
}

QString pagesMatched(const FileItem &file)
{
    const auto *ours = ourFile(file, u"submitted");
    const auto matched = ours ? ours->matched.value_or(0) : 0;
    return matched == 0 ? u"Found nothing of ours to compare it with"_s
                        : u"Matched %1 to what we sent"_s.arg(counted(matched, u"page"_s));
}

qint64 serious(const FileDetail &proof)
{
    return std::count_if(proof.findings.begin(), proof.findings.end(),
                         [](const Finding &finding) { return !isSettled(finding) && finding.severity == "high"_L1; });
}

QString differencesFound(const FileDetail &proof)
{
    const auto found = std::count_if(proof.findings.begin(), proof.findings.end(), std::not_fn(isSettled));
    return found == 0 ? u"Found no differences"_s : u"Found "_s + counted(found, u"difference"_s);
}

} // namespace

QList<Step> syncSteps(const std::optional<FileDetail> &proof)
{
    if (!proof)
        return {{u"Reading the supplier mail"_s, u"Read the supplier mail"_s},
                {u"Looking for new proofs"_s, u"Found no new proofs"_s}};
    const auto name = proof->file.filename.value_or(displayTitle(proof->file));
    const auto title = displayTitle(proof->file);
    return {{u"Reading the supplier mail"_s, u"Read 1 new mail"_s + from(proof->file)},
            {u"Filing %1 to Drive"_s.arg(name), u"Filed %1 to Drive"_s.arg(name)},
            {u"Matching its pages to ours"_s, pagesMatched(proof->file)},
            {u"Checking the words of %1"_s.arg(title), u"Checked the words"_s},
            {u"Checking the pictures of %1"_s.arg(title), u"Checked the pictures"_s},
            {u"Writing down what differs"_s, differencesFound(*proof)},
            {u"Putting %1 on the board"_s.arg(title), u"Put %1 on the board"_s.arg(title)}};
}

Summary syncSummary(const std::optional<FileDetail> &proof)
{
    if (!proof)
        return {.done = QList{u"Read the supplier mail: nothing new"_s}};
    const auto title = displayTitle(proof->file);
    Summary summary{.done = QList{u"Filed %1 to Drive"_s.arg(proof->file.filename.value_or(title))},
                    .changed = QList{u"%1: %2"_s.arg(title, differencesFound(*proof).toLower())}};
    if (const auto count = serious(*proof); count > 0)
        summary.check = QList{u"%1: %2 to look at first"_s.arg(title, counted(count, u"finding"_s))};
    return summary;
}

QString syncedText(const std::optional<FileDetail> &proof)
{
    return proof ? u"1 new file"_s + from(proof->file) : u"Nothing new in the supplier mail"_s;
}

QString newFileText(const FileItem &file)
{
    return displayTitle(file) + from(file);
}

} // namespace vexal::local
