#include "ui/SvgPath.h"

#include <QLineF>
#include <QPointF>

#include <cmath>
#include <numbers>
#include <optional>

namespace tarvin {

namespace {

/// Reads numbers as they stand in path data: with commas, blanks, or nothing but a sign or a second point between them.
class PathReader
{
public:
    explicit PathReader(QStringView data)
        : m_rest(data)
    { }

    [[nodiscard]] bool atEnd()
    {
        skipSeparators();
        return m_rest.isEmpty();
    }
    /// A command letter, if one stands here.
    [[nodiscard]] std::optional<char16_t> command()
    {
        skipSeparators();
        if (m_rest.isEmpty() || !m_rest.front().isLetter())
            return std::nullopt;
        return take();
    }
    /// Zero where no number stands, which also marks the data as broken.
    [[nodiscard]] double number()
    {
        skipSeparators();
        qsizetype length = 0;
        while (length < m_rest.size() && goesOn(m_rest.first(length), m_rest[length]))
            ++length;
        bool isNumber = false;
        const double value = m_rest.first(length).toDouble(&isNumber);
        m_isBroken = m_isBroken || !isNumber;
        m_rest = m_rest.sliced(length);
        return value;
    }
    /// The flags of an arc are one digit each, and need nothing between them.
    [[nodiscard]] bool flag()
    {
        skipSeparators();
        return !m_rest.isEmpty() && take() == u'1';
    }
    [[nodiscard]] QPointF point(const QPointF& origin)
    {
        const double x = number();
        const double y = number();
        return origin + QPointF(x, y);
    }
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

private:
    /// Whether the character is still part of the number that has been read so far.
    [[nodiscard]] static bool goesOn(QStringView number, QChar character)
    {
        if (character == u'-' || character == u'+')
            return number.isEmpty() || number.endsWith(u'e', Qt::CaseInsensitive);
        if (character == u'.')
            return !number.contains(u'.');
        return character.isDigit() || character == u'e' || character == u'E';
    }
    void skipSeparators()
    {
        while (!m_rest.isEmpty() && (m_rest.front().isSpace() || m_rest.front() == u','))
            m_rest = m_rest.sliced(1);
    }
    char16_t take()
    {
        const char16_t character = m_rest.front().unicode();
        m_rest = m_rest.sliced(1);
        return character;
    }

    QStringView m_rest;
    bool m_isBroken = false;
};

struct Arc
{
    double radiusX = 0;
    double radiusY = 0;
    double rotation = 0; ///< degrees
    bool isLarge = false;
    bool isClockwise = false;
    QPointF end;
};

/// From end points to a centre, as the SVG recommendation tells in its notes on implementation, then in pieces of at
/// most a quarter turn, each of them one cubic curve.
void addArc(QPainterPath& path, const Arc& arc)
{
    const QPointF start = path.currentPosition();
    double rx = std::abs(arc.radiusX);
    double ry = std::abs(arc.radiusY);
    if (rx == 0 || ry == 0 || start == arc.end) {
        path.lineTo(arc.end);
        return;
    }
    const double phi = arc.rotation * std::numbers::pi / 180;
    const double cosPhi = std::cos(phi);
    const double sinPhi = std::sin(phi);
    const QPointF half = (start - arc.end) / 2;
    const double x = cosPhi * half.x() + sinPhi * half.y();
    const double y = -sinPhi * half.x() + cosPhi * half.y();
    const double reach = x * x / (rx * rx) + y * y / (ry * ry);
    if (reach > 1) {
        rx *= std::sqrt(reach);
        ry *= std::sqrt(reach);
    }
    const double denominator = rx * rx * y * y + ry * ry * x * x;
    double factor = std::sqrt(std::max(0.0, rx * rx * ry * ry / denominator - 1));
    if (arc.isLarge == arc.isClockwise)
        factor = -factor;
    const double centreX = factor * rx * y / ry;
    const double centreY = -factor * ry * x / rx;
    const QPointF middle = (start + arc.end) / 2;
    const QPointF centre(
        cosPhi * centreX - sinPhi * centreY + middle.x(), sinPhi * centreX + cosPhi * centreY + middle.y());
    const double from = std::atan2((y - centreY) / ry, (x - centreX) / rx);
    double sweep = std::atan2((-y - centreY) / ry, (-x - centreX) / rx) - from;
    if (arc.isClockwise && sweep < 0)
        sweep += 2 * std::numbers::pi;
    else if (!arc.isClockwise && sweep > 0)
        sweep -= 2 * std::numbers::pi;

    const int pieces = static_cast<int>(std::ceil(std::abs(sweep) / (std::numbers::pi / 2) - 1e-9));
    const double step = sweep / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4);
    const auto onEllipse = [&](double u, double v) {
        return centre + QPointF(cosPhi * rx * u - sinPhi * ry * v, sinPhi * rx * u + cosPhi * ry * v);
    };
    for (int piece = 0; piece < pieces; ++piece) {
        const double a = from + piece * step;
        const double b = a + step;
        const bool isLast = piece + 1 == pieces;
        path.cubicTo(onEllipse(std::cos(a) - handle * std::sin(a), std::sin(a) + handle * std::cos(a)),
            onEllipse(std::cos(b) + handle * std::sin(b), std::sin(b) - handle * std::cos(b)),
            isLast ? arc.end : onEllipse(std::cos(b), std::sin(b)));
    }
}

/// Follows the commands one by one.
class PathBuilder
{
public:
    explicit PathBuilder(QStringView data)
        : m_reader(data)
    { }

    [[nodiscard]] QPainterPath path()
    {
        while (!m_reader.atEnd() && !m_reader.isBroken()) {
            if (const auto next = m_reader.command())
                m_command = *next;
            else if (m_command == u'M' || m_command == u'm')
                m_command = m_command == u'M' ? u'L' : u'l'; // more points after the first are lines
            const bool isRelative = m_command >= u'a';
            m_kind = isRelative ? static_cast<char16_t>(m_command - u'a' + u'A') : m_command;
            m_here = m_path.currentPosition();
            m_origin = isRelative ? m_here : QPointF();
            if (!step())
                break;
            m_previous = m_kind;
        }
        return m_path;
    }

private:
    /// False for a letter that is no command.
    bool step()
    {
        switch (m_kind) {
        case u'M':
            m_path.moveTo(m_reader.point(m_origin));
            return true;
        case u'L':
            m_path.lineTo(m_reader.point(m_origin));
            return true;
        case u'H':
            m_path.lineTo(m_origin.x() + m_reader.number(), m_here.y());
            return true;
        case u'V':
            m_path.lineTo(m_here.x(), m_origin.y() + m_reader.number());
            return true;
        case u'C':
        case u'S':
            addCubic();
            return true;
        case u'Q':
        case u'T':
            m_control = m_kind == u'Q' ? m_reader.point(m_origin) : mirroredControl(u'Q', u'T');
            m_path.quadTo(m_control, m_reader.point(m_origin));
            return true;
        case u'A':
            readArc();
            return true;
        case u'Z':
            m_path.closeSubpath();
            return true;
        default:
            return false;
        }
    }
    /// The handle of a curve that goes on smoothly from one of those kinds.
    [[nodiscard]] QPointF mirroredControl(char16_t curve, char16_t smoothCurve) const
    {
        return m_previous == curve || m_previous == smoothCurve ? 2 * m_here - m_control : m_here;
    }
    void addCubic()
    {
        const QPointF first = m_kind == u'C' ? m_reader.point(m_origin) : mirroredControl(u'C', u'S');
        m_control = m_reader.point(m_origin);
        m_path.cubicTo(first, m_control, m_reader.point(m_origin));
    }
    void readArc()
    {
        Arc arc{};
        arc.radiusX = m_reader.number();
        arc.radiusY = m_reader.number();
        arc.rotation = m_reader.number();
        arc.isLarge = m_reader.flag();
        arc.isClockwise = m_reader.flag();
        arc.end = m_reader.point(m_origin);
        addArc(m_path, arc);
    }

    PathReader m_reader;
    QPainterPath m_path;
    char16_t m_command = 0;
    char16_t m_kind = 0; ///< the command, whether its points are absolute or not
    char16_t m_previous = 0;
    QPointF m_here;
    QPointF m_origin; ///< what points are measured from
    QPointF m_control; ///< the last handle of the curve before
};

} // namespace

QPainterPath pathFromSvg(QStringView data)
{
    return PathBuilder(data).path();
}

} // namespace tarvin
