#include "paper.h"

#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr double pointsAnInch = 72;

} // namespace

Paper::Paper(const QString &title)
    : m_writer((m_bytes.open(QIODevice::WriteOnly), &m_bytes))
{
    m_writer.setTitle(title);
    m_writer.setCreator(u"Vexal"_s);
    m_writer.setPageSize(QPageSize(QPageSize::A4));
    m_writer.setPageMargins({});
    m_painter.begin(&m_writer);
    m_painter.scale(m_writer.resolution() / pointsAnInch, m_writer.resolution() / pointsAnInch);
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

void Paper::ensure(double height)
{
    if (m_y + height > bottom)
        nextSheet();
}

void Paper::nextSheet()
{
    if (m_y <= top)
        return;
    m_writer.newPage();
    ++m_sheet;
    m_y = top;
}

void Paper::paragraph(const QString &text, const Style &style, double x)
{
    QTextLayout layout(text, font(style));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(right - x);
    layout.endLayout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const auto line = layout.lineAt(i);
        const double height = line.height() * 1.15;
        ensure(height);
        m_painter.setPen(style.color);
        line.draw(&m_painter, {x, m_y - line.y()});
        m_y += height;
    }
}

QByteArray Paper::finish()
{
    m_painter.end();
    return m_bytes.data();
}

QFont Paper::font(const Style &style)
{
    QFont font;
    font.setFamilies({u"Inter"_s, u"DejaVu Sans"_s});
    font.setPixelSize(qRound(style.size));
    font.setWeight(style.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace vexal::local
