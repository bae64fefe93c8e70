#include "leaf.h"

#include "found.h"
#include "scan.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

std::optional<QString> labelOf(const Leaf &leaf)
{
    return leaf.label.isEmpty() ? std::nullopt : std::optional(leaf.label);
}

Sheet changed(Sheet sheet, const QList<Change> &changes)
{
    for (const Change &change : changes)
        if (change.make)
            change.make(sheet);
    return sheet;
}

/// Prints one leaf of a file: the proof, what we sent and the last print.
class LeafPress
{
public:
    LeafPress(const FilePlan &plan, qsizetype index, const QString &folder)
        : m_plan(plan)
        , m_leaf(plan.leaves.at(index))
        , m_index(index)
        , m_folder(folder)
    {
    }

    PrintedLeaf print()
    {
        const Print ours = paint(m_leaf.ours);
        Print proof = paint(changed(m_leaf.ours, m_leaf.changes));
        if (m_plan.scanned)
            proof = scanned(proof, 40 + static_cast<quint64>(m_index));
        writeProof(proof);
        if (m_leaf.sent)
            writeOurs(u"submitted"_s, u"s"_s, ours, m_leaf.changes.size());
        report(m_leaf.changes, u"submitted"_s, proof, ours);
        if (m_leaf.printed) {
            const Print last = paint(changed(m_leaf.ours, m_leaf.edits));
            writeOurs(u"latest"_s, u"l"_s, last, m_leaf.changes.size() + m_leaf.edits.size());
            report(m_leaf.edits, u"latest"_s, proof, last);
        }
        return m_out;
    }

private:
    void writeProof(const Print &proof)
    {
        Page &page = m_out.page;
        page.i = m_index;
        page.label = labelOf(m_leaf);
        page.img = write(u"p"_s, proof.image);
        page.thumb = write(u"t"_s, proof.image.scaled(400, 240, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        page.px = {static_cast<double>(proof.image.width()), static_cast<double>(proof.image.height())};
        page.w = proof.image.width() / 3.0; // 216 pixels an inch
        page.h = proof.image.height() / 3.0;
        if (m_leaf.read)
            page.ocr = true;
        if (m_index == 0)
            m_out.cover = write(u"c"_s, coverOf(proof.image));
    }

    void writeOurs(const QString &role, const QString &sign, const Print &ours, qsizetype differences)
    {
        RefPage ref;
        ref.i = pagesBefore(role);
        ref.label = labelOf(m_leaf);
        ref.img = write(sign, ours.image);
        ref.px = {static_cast<double>(ours.image.width()), static_cast<double>(ours.image.height())};
        ref.score = qMax(0.5, 1 - 0.03 * static_cast<double>(differences));
        ref.how = m_leaf.read ? u"picture"_s : u"text"_s;
        if (!m_out.page.refs)
            m_out.page.refs.emplace();
        m_out.page.refs->insert(role, ref);
    }

    /// The middle of the cover, as tall as it is and seven ninths as wide.
    QImage coverOf(const QImage &proof) const
    {
        const QRectF area = m_plan.cover.isValid() ? m_plan.cover : QRectF(proof.rect());
        const double width = qMin(area.width(), area.height() * 7 / 9);
        const QRectF middle(area.center().x() - width / 2, area.top(), width, qMin(area.height(), width * 9 / 7));
        return proof.copy(middle.toRect()).scaled(280, 360, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    qint64 pagesBefore(const QString &role) const
    {
        qint64 count = 0;
        for (const Leaf &leaf : m_plan.leaves.first(m_index))
            count += (role == "submitted"_L1 ? leaf.sent : leaf.printed) ? 1 : 0;
        return count;
    }

    void report(const QList<Change> &changes, const QString &against, const Print &proof, const Print &ours)
    {
        for (const Change &change : changes) {
            if (!change.kind.isEmpty())
                m_out.findings.append(found(change, against, proof, ours));
        }
    }

    QString write(const QString &sign, const QImage &picture)
    {
        const bool flat = m_leaf.flat && sign != "t"_L1;
        QString key = u"%1/%2%3.%4"_s.arg(m_plan.file.id, sign)
                          .arg(m_index + 1, 2, 10, QChar(u'0'))
                          .arg(flat ? u"png"_s : u"jpg"_s);
        if (!picture.save(m_folder + u'/' + fileOfKey(key), flat ? "PNG" : "JPG", flat ? -1 : 88))
            m_out.unwritten.append(key);
        return key;
    }

    const FilePlan &m_plan;
    const Leaf &m_leaf;
    qsizetype m_index;
    QString m_folder;
    PrintedLeaf m_out;
};

} // namespace

PrintedLeaf printLeaf(const FilePlan &plan, qsizetype index, const QString &folder)
{
    return LeafPress(plan, index, folder).print();
}

QString fileOfKey(const QString &key)
{
    return QString(key).replace(u'/', u'_');
}

} // namespace vexal::sample
