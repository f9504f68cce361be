#include <OrvaneExportKit/platform/GeometryStrings.h>

#include <QtCore/QLocale>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

QString pair(double first, double second)
{
    const auto number = [](double value) {
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    };
    return u"{%1, %2}"_s.arg(number(first), number(second));
}

/// Takes from a string what stands at its start.
class Scanner
{
public:
    explicit Scanner(QStringView string) : m_rest(string.trimmed()) {}

    bool take(QChar character)
    {
        const bool found = m_rest.startsWith(character);
        m_rest = m_rest.mid(found ? 1 : 0).trimmed();
        return found;
    }

    bool takeNumber(double &number)
    {
        const auto belongs = [](QChar character) {
            return character != u',' && character != u'}';
        };
        const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), belongs);
        bool isNumber = false;
        number = m_rest.left(end - m_rest.begin()).trimmed().toDouble(&isNumber);
        m_rest = m_rest.mid(end - m_rest.begin());
        return isNumber && std::isfinite(number);
    }

    bool takePair(double &first, double &second)
    {
        return take(u'{') && takeNumber(first) && take(u',') && takeNumber(second) && take(u'}');
    }

    bool atEnd() const { return m_rest.isEmpty(); }

private:
    QStringView m_rest;
};

} // namespace

QString stringFromPoint(QPointF point)
{
    return pair(point.x(), point.y());
}

QString stringFromSize(QSizeF size)
{
    return pair(size.width(), size.height());
}

QString stringFromRectangle(const QRectF &rectangle)
{
    return u"{%1, %2}"_s.arg(stringFromPoint(rectangle.topLeft()), stringFromSize(rectangle.size()));
}

std::optional<QPointF> pointFromString(QStringView string)
{
    Scanner scanner(string);
    double x = 0;
    double y = 0;
    return scanner.takePair(x, y) && scanner.atEnd() ? std::optional(QPointF(x, y)) : std::nullopt;
}

std::optional<QSizeF> sizeFromString(QStringView string)
{
    Scanner scanner(string);
    double width = 0;
    double height = 0;
    return scanner.takePair(width, height) && scanner.atEnd() ? std::optional(QSizeF(width, height)) : std::nullopt;
}

std::optional<QRectF> rectangleFromString(QStringView string)
{
    Scanner scanner(string);
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    const bool complete = scanner.take(u'{') && scanner.takePair(x, y) && scanner.take(u',') &&
                          scanner.takePair(width, height) && scanner.take(u'}') && scanner.atEnd();
    return complete ? std::optional(QRectF(x, y, width, height)) : std::nullopt;
}

} // namespace platform
