#include "shape.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// Reads path data letter by letter.
class Reader
{
public:
    explicit Reader(QLatin1StringView data)
        : m_data(data)
    {
    }

    QPainterPath read()
    {
        while (const char letter = next())
            step(letter);
        return m_path;
    }

private:
    char next()
    {
        skipBlanks();
        if (m_at == m_data.size())
            return 0;
        const char letter = m_data.at(m_at).toLatin1();
        if (letter < 'A')
            return m_letter; // numbers go on: the same letter again
        ++m_at;
        m_letter = letter;
        return letter;
    }

    void step(char letter)
    {
        switch (letter) {
        case 'M':
            m_path.moveTo(point());
            m_letter = 'L';
            return;
        case 'L':
            m_path.lineTo(point());
            return;
        case 'H':
            m_path.lineTo(number(), m_path.currentPosition().y());
            return;
        case 'V':
            m_path.lineTo(m_path.currentPosition().x(), number());
            return;
        case 'Z':
            m_path.closeSubpath();
            return;
        case 'Q': {
            const QPointF bend = point();
            m_path.quadTo(bend, point());
            return;
        }
        case 'C': {
            const QPointF out = point();
            const QPointF in = point();
            m_path.cubicTo(out, in, point());
            return;
        }
        default:
            qFatal("A path knows no letter %c", letter);
        }
    }

    QPointF point()
    {
        const double x = number();
        return {x, number()};
    }

    double number()
    {
        skipBlanks();
        const qsizetype from = m_at;
        while (m_at < m_data.size() && "0123456789.-"_L1.contains(m_data.at(m_at)) &&
               !(m_at > from && m_data.at(m_at) == u'-'))
            ++m_at;
        bool good = false;
        const double value = QByteArray(m_data.data() + from, m_at - from).toDouble(&good);
        if (!good)
            qFatal("A path misses a number at %lld", static_cast<long long>(from));
        return value;
    }

    void skipBlanks()
    {
        while (m_at < m_data.size() && (m_data.at(m_at) == u' ' || m_data.at(m_at) == u','))
            ++m_at;
    }

    QLatin1StringView m_data;
    qsizetype m_at = 0;
    char m_letter = 0;
    QPainterPath m_path;
};

} // namespace

QPainterPath outline(QLatin1StringView data)
{
    return Reader(data).read();
}

} // namespace vexal::sample
