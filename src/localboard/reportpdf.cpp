#include "reportpdf.h"

#include "derived.h"
#include "paper.h"
#include "reportwords.h"

#include <QBuffer>
#include <QDateTime>
#include <QImageReader>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

const QColor ink(0x0F, 0x0B, 0x0A);
const QColor grey(0x6A, 0x62, 0x5D);
const QColor hair(0xD8, 0xD8, 0xD6);
const QColor accent(0xE4, 0x57, 0x2E);

const Paper::Style heading{22, QFont::DemiBold, ink};
const Paper::Style subheading{13, QFont::DemiBold, ink};
const Paper::Style statement{10, QFont::DemiBold, ink};
const Paper::Style plain{10, QFont::Normal, ink};
const Paper::Style aside{9, QFont::Normal, grey};

constexpr QSizeF largestPicture{190, 226}; ///< Three fit on a sheet.
constexpr double besidePicture = Paper::left + 190 + 18;
constexpr int picturePixels = 1000; ///< Of the longer side: sharp on paper at this size, small in the file.

QColor colorOf(const Finding &finding)
{
    if (isSettled(finding))
        return {0x8B, 0x83, 0x7D};
    if (finding.state == "fine"_L1)
        return {0x2E, 0x8B, 0x57};
    return finding.state == "issue"_L1 ? QColor(0xC8, 0x34, 0x1C) : accent;
}

QImage decoded(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const auto size = reader.size();
    if (std::max(size.width(), size.height()) > picturePixels)
        reader.setScaledSize(size.scaled(picturePixels, picturePixels, Qt::KeepAspectRatio));
    return reader.read();
}

/// Draws one report.
class Drawing
{
public:
    explicit Drawing(const ReportContent &content)
        : m_content(content)
        , m_paper(content.title)
    {
    }

    QByteArray draw(const std::function<bool(int page)> &goOn)
    {
        cover();
        int number = 0;
        for (const FileDetail &detail : m_content.files) {
            beginFile(detail);
            for (const Page &page : detail.file.pages.value_or(QList<Page>{})) {
                if (!goOn(++number))
                    return {};
                drawPage(detail, page);
            }
        }
        return m_paper.finish();
    }

private:
    void cover();
    void mark(QPointF at, double height);
    void beginFile(const FileDetail &detail);
    void drawPage(const FileDetail &detail, const Page &page);
    QRectF picture(const Page &page);
    void boxes(const QRectF &frame, const QList<Finding> &findings);
    void pins(const QRectF &frame, const QList<Note> &notes);
    void badge(QPointF centre, const QString &text, const QColor &color);
    void finding(const Finding &finding, int number);
    void note(const Note &note, double x, const QString &letter);
    QString name(const std::optional<QString> &email) const
    {
        return email ? m_content.names.value(*email, *email) : QString();
    }

    const ReportContent &m_content;
    Paper m_paper;
};

void Drawing::cover()
{
    mark({Paper::left, 120}, 44);
    m_paper.moveTo(190);
    m_paper.paragraph(m_content.title, {30, QFont::DemiBold});
    m_paper.skip(6);
    const auto day =
        QLocale(QLocale::English).toString(QDateTime::fromMSecsSinceEpoch(qint64(m_content.at)), u"d MMMM yyyy");
    m_paper.paragraph(joined({u"Asked for by "_s + m_content.by, day}), {12, QFont::Normal, grey});
    m_paper.skip(40);
    for (const FileDetail &detail : m_content.files) {
        m_paper.ensure(50);
        m_paper.paragraph(displayTitle(detail.file), subheading);
        m_paper.paragraph(factsLine(detail.file), aside);
        m_paper.paragraph(tallyLine(detail.file), aside);
        m_paper.skip(14);
    }
}

/// Our file, filled, and their proof, outlined, face to face.
void Drawing::mark(QPointF at, double height)
{
    auto &painter = m_paper.painter();
    const QRectF left(at, QSizeF(height, height));
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawChord(left, 90 * 16, 180 * 16);
    painter.setPen(QPen(ink, height * 0.04, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawChord(left.translated(height * 0.11, 0), -90 * 16, 180 * 16);
}

void Drawing::beginFile(const FileDetail &detail)
{
    m_paper.nextSheet();
    m_paper.paragraph(displayTitle(detail.file), heading);
    m_paper.paragraph(joined({factsLine(detail.file), tallyLine(detail.file)}), aside);
    if (detail.file.summary)
        m_paper.paragraph(*detail.file.summary, plain);
    m_paper.skip(12);
    for (const Note &each : detail.comments) {
        if (!each.page)
            note(each, Paper::left, {});
    }
}

void Drawing::drawPage(const FileDetail &detail, const Page &page)
{
    m_paper.ensure(largestPicture.height());
    const auto frame = picture(page);
    const int sheet = m_paper.sheet();
    QList<Finding> findings;
    QList<Note> notes;
    std::copy_if(detail.findings.begin(), detail.findings.end(), std::back_inserter(findings),
                 [&](const Finding &each) { return each.page == page.i; });
    std::copy_if(detail.comments.begin(), detail.comments.end(), std::back_inserter(notes),
                 [&](const Note &each) { return each.page == page.i; });
    boxes(frame, findings);
    pins(frame, notes);

    m_paper.paragraph(u"Page "_s + pageLabel(page), subheading, besidePicture);
    m_paper.skip(4);
    for (int i = 0; i < findings.size(); ++i)
        finding(findings[i], i + 1);
    for (int i = 0; i < notes.size(); ++i)
        note(notes[i], besidePicture, QString(QChar(u'A' + i % 26)));
    if (findings.isEmpty() && notes.isEmpty())
        m_paper.paragraph(u"Nothing found."_s, aside, besidePicture);
    if (m_paper.sheet() == sheet)
        m_paper.moveTo(std::max(m_paper.y(), frame.bottom()));
    m_paper.skip(22);
}

/// Draws the page's picture at the left and answers where it lies.
QRectF Drawing::picture(const Page &page)
{
    const auto size = QSizeF(aspect(page), 1).scaled(largestPicture, Qt::KeepAspectRatio);
    const QRectF frame({Paper::left, m_paper.y()}, size);
    const auto image = page.img ? decoded(m_content.picture(*page.img)) : QImage();
    auto &painter = m_paper.painter();
    if (!image.isNull())
        painter.drawImage(frame, image);
    painter.setPen(QPen(hair, 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    return frame;
}

void Drawing::boxes(const QRectF &frame, const QList<Finding> &findings)
{
    for (int i = 0; i < findings.size(); ++i) {
        auto places = findings[i].boxes.value_or(QList<Box>{});
        if (findings[i].box)
            places.prepend(*findings[i].box);
        for (const Box &box : places) {
            if (box.size() != 4)
                continue;
            const QRectF place(frame.x() + box[0] * frame.width(), frame.y() + box[1] * frame.height(),
                               box[2] * frame.width(), box[3] * frame.height());
            auto &painter = m_paper.painter();
            painter.setPen(QPen(colorOf(findings[i]), 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(place.adjusted(-1.5, -1.5, 1.5, 1.5));
            badge(place.topLeft() - QPointF(1.5, 1.5), QString::number(i + 1), colorOf(findings[i]));
        }
    }
}

void Drawing::pins(const QRectF &frame, const QList<Note> &notes)
{
    for (int i = 0; i < notes.size(); ++i) {
        if (notes[i].x && notes[i].y)
            badge({frame.x() + *notes[i].x * frame.width(), frame.y() + *notes[i].y * frame.height()},
                  QString(QChar(u'A' + i % 26)), ink);
    }
}

void Drawing::badge(QPointF centre, const QString &text, const QColor &color)
{
    auto &painter = m_paper.painter();
    const QRectF disc(centre - QPointF(5, 5), QSizeF(10, 10));
    painter.setPen(QPen(Qt::white, 0.7));
    painter.setBrush(color);
    painter.drawEllipse(disc);
    painter.setPen(Qt::white);
    painter.setFont(Paper::font({6, QFont::Bold, Qt::white}));
    painter.drawText(disc, Qt::AlignCenter, text);
}

void Drawing::finding(const Finding &finding, int number)
{
    m_paper.ensure(30);
    badge({besidePicture + 5, m_paper.y() + 6}, QString::number(number), colorOf(finding));
    const double x = besidePicture + 16;
    m_paper.paragraph(finding.title, statement, x);
    if (finding.detail)
        m_paper.paragraph(*finding.detail, plain, x);
    if (finding.before)
        m_paper.paragraph(u"Ours: "_s + *finding.before, plain, x);
    if (finding.after)
        m_paper.paragraph(u"Theirs: "_s + *finding.after, plain, x);
    m_paper.paragraph(findingLine(finding, name(finding.state_by)), aside, x);
    m_paper.skip(8);
}

void Drawing::note(const Note &note, double x, const QString &letter)
{
    m_paper.ensure(30);
    if (!letter.isEmpty())
        badge({x + 5, m_paper.y() + 6}, letter, ink);
    m_paper.paragraph(note.text, plain, x + 16);
    m_paper.paragraph(noteLine(note, name(note.by)), aside, x + 16);
    m_paper.skip(8);
}

} // namespace

QByteArray reportPdf(const ReportContent &content, const std::function<bool(int page)> &goOn)
{
    return Drawing(content).draw(goOn);
}

} // namespace vexal::local
