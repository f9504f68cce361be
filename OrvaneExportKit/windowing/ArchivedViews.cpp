#include <OrvaneExportKit/windowing/ArchivedViews.h>

#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/windowing/Frames.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>
#include <OrvaneExportKit/windowing/TextField.h>

#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// Bits of `NSvFlags`.
constexpr quint32 hiddenView = 0x80000000;
constexpr quint32 resizesSubviews = 0x00000100;

/// Bits of `NSCellFlags`.
constexpr quint32 editableCell = 0x10000000;
constexpr quint32 textCell = 0x04000000;
constexpr quint32 bezeledCell = 0x00400000;
constexpr quint32 selectableCell = 0x00200000;

/// Where `NSCellFlags2` holds the alignment.
constexpr int alignmentShift = 26;
constexpr quint32 alignmentMask = 7;

/// What stands in the cell of a text field, an object of its own in keyed archives.
struct TextFieldCell {
    QVariant contents; ///< a string or an attributed string
    QFont font;
    TextAlignment alignment = TextAlignment::Natural;
    TextField::BezelStyle bezelStyle = TextField::BezelStyle::Square;
    bool isEditable = false;
    bool hasBezel = false;
};

/// Flags are written as the signed numbers that other programs write.
void encodeFlags(platform::Coder &coder, quint32 flags, const QString &key)
{
    coder.encodeInt64(static_cast<qint32>(flags), key);
}

quint32 decodeFlags(platform::Coder &coder, const QString &key)
{
    return static_cast<quint32>(coder.decodeInt64ForKey(key));
}

TextField::BezelStyle bezelStyle(qint64 number)
{
    return number == qint64(TextField::BezelStyle::Rounded) ? TextField::BezelStyle::Rounded
                                                            : TextField::BezelStyle::Square;
}

TextAlignment alignment(qint64 number)
{
    return number < qint64(TextAlignment::Left) || number > qint64(TextAlignment::Natural) ? TextAlignment::Natural
                                                                                           : TextAlignment(number);
}

bool isText(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QString>() ||
           value.metaType() == QMetaType::fromType<platform::AttributedString>();
}

void encodeCell(const QVariant &object, platform::Coder &coder)
{
    const auto cell = object.value<TextFieldCell>();
    const quint32 flags = textCell | (cell.isEditable ? editableCell | selectableCell : selectableCell) |
                          (cell.hasBezel ? bezeledCell : 0);
    encodeFlags(coder, flags, u"NSCellFlags"_s);
    encodeFlags(coder, quint32(cell.alignment) << alignmentShift, u"NSCellFlags2"_s);
    coder.encodeObject(cell.contents, u"NSContents"_s);
    coder.encodeObject(cell.font, u"NSSupport"_s);
    if (cell.bezelStyle == TextField::BezelStyle::Rounded) {
        coder.encodeInt64(qint64(cell.bezelStyle), u"NSTextBezelStyle"_s);
    }
}

QVariant decodeCell(platform::Coder &coder)
{
    const quint32 flags = decodeFlags(coder, u"NSCellFlags"_s);
    TextFieldCell cell;
    cell.isEditable = (flags & editableCell) != 0;
    cell.hasBezel = (flags & bezeledCell) != 0;
    cell.alignment = alignment((decodeFlags(coder, u"NSCellFlags2"_s) >> alignmentShift) & alignmentMask);
    cell.bezelStyle = bezelStyle(coder.decodeInt64ForKey(u"NSTextBezelStyle"_s));
    const QVariant contents = coder.decodeObjectForKey(u"NSContents"_s);
    if (contents.isValid() && !isText(contents)) {
        throw platform::ArchiveException("NSTextFieldCell: `NSContents` is no text");
    }
    cell.contents = contents;
    cell.font = coder.decodeObjectForKey(u"NSSupport"_s).value<QFont>();
    return QVariant::fromValue(cell);
}

TextFieldCell cellOf(const TextField &field)
{
    return {QVariant::fromValue(field.attributedStringValue()),
            field.font(),
            textAlignment(field.alignment()),
            field.bezelStyle(),
            field.isEditable(),
            field.hasFrame()};
}

void setContents(TextField &field, const QVariant &contents)
{
    if (contents.metaType() == QMetaType::fromType<platform::AttributedString>()) {
        field.setAttributedStringValue(contents.value<platform::AttributedString>());
    } else {
        field.setStringValue(contents.toString());
    }
}

void setCell(TextField &field, const TextFieldCell &cell)
{
    field.setFont(cell.font);
    field.setAlignment(widgetAlignment(cell.alignment));
    field.setBezelStyle(cell.bezelStyle);
    field.setEditable(cell.isEditable);
    static_cast<QLineEdit &>(field).setFrame(cell.hasBezel);
    setContents(field, cell.contents);
}

/// A rectangle that a widget can have.
QRectF requireFrame(const std::optional<QRectF> &frame)
{
    const auto isPossible = [](double number) {
        return std::abs(number) <= QWIDGETSIZE_MAX;
    };
    if (!frame || !isPossible(frame->x()) || !isPossible(frame->y()) || !isPossible(frame->width()) ||
        !isPossible(frame->height())) {
        throw platform::ArchiveException("NSView: the frame is no rectangle, or too large for a view");
    }
    return *frame;
}

/// The frame of a keyed archive, or the one that the view has where the archive has none.
QRectF decodeFrame(const QWidget &view, platform::Coder &coder)
{
    if (coder.containsValueForKey(u"NSFrame"_s)) {
        return requireFrame(platform::rectangleFromString(coder.decodeObjectForKey(u"NSFrame"_s).toString()));
    }
    if (coder.containsValueForKey(u"NSFrameSize"_s)) {
        const auto size = platform::sizeFromString(coder.decodeObjectForKey(u"NSFrameSize"_s).toString());
        return requireFrame(size ? std::optional(QRectF(QPointF(), *size)) : std::nullopt);
    }
    return frameOf(view);
}

template <typename Number>
Number decodeNumber(platform::Coder &coder, const char *type)
{
    Number number{};
    coder.decodeValueOfObjCType(type, &number);
    return number;
}

/// Whether the view is hidden on purpose; one that was never shown is not.
bool isHidden(const QWidget &view)
{
    return view.isHidden() && view.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

void registerCells()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration cell(
        {{u"NSTextFieldCell"_s, u"NSActionCell"_s, u"NSCell"_s, u"NSObject"_s},
         QMetaType::fromType<TextFieldCell>(),
         encodeCell,
         decodeCell});
}
Q_COREAPP_STARTUP_FUNCTION(registerCells)

} // namespace

void encodeView(const QWidget &view, platform::Coder &coder)
{
    const QRectF frame = frameOf(view);
    if (coder.allowsKeyedCoding()) {
        encodeFlags(coder, isHidden(view) ? hiddenView | resizesSubviews : resizesSubviews, u"NSvFlags"_s);
        if (frame.topLeft().isNull()) {
            coder.encodeObject(platform::stringFromSize(frame.size()), u"NSFrameSize"_s);
        } else {
            coder.encodeObject(platform::stringFromRectangle(frame), u"NSFrame"_s);
        }
        return;
    }
    for (const double number : {frame.x(), frame.y(), frame.width(), frame.height()}) {
        coder.encodeValueOfObjCType("d", &number);
    }
    const bool hidden = isHidden(view);
    coder.encodeValueOfObjCType("B", &hidden);
}

void decodeView(QWidget &view, platform::Coder &coder)
{
    QRectF frame;
    bool hidden = false;
    if (coder.allowsKeyedCoding()) {
        frame = decodeFrame(view, coder);
        hidden = (decodeFlags(coder, u"NSvFlags"_s) & hiddenView) != 0;
    } else {
        const auto x = decodeNumber<double>(coder, "d");
        const auto y = decodeNumber<double>(coder, "d");
        const auto width = decodeNumber<double>(coder, "d");
        const auto height = decodeNumber<double>(coder, "d");
        frame = requireFrame(QRectF(x, y, width, height));
        hidden = decodeNumber<bool>(coder, "B");
    }
    setFrame(view, frame);
    if (hidden) {
        view.hide();
    }
}

void encodeTextField(const TextField &field, platform::Coder &coder)
{
    encodeView(field, coder);
    const bool enabled = field.isEnabled();
    const qint64 tag = field.tag();
    const TextFieldCell cell = cellOf(field);
    if (coder.allowsKeyedCoding()) {
        coder.encodeBool(enabled, u"NSEnabled"_s);
        coder.encodeInt64(tag, u"NSTag"_s);
        coder.encodeObject(QVariant::fromValue(cell), u"NSCell"_s);
        return;
    }
    coder.encodeValueOfObjCType("B", &enabled);
    coder.encodeValueOfObjCType("q", &tag);
    coder.encodeObject(field.stringValue());
    for (const int number : {int(cell.isEditable), int(cell.alignment), int(cell.bezelStyle)}) {
        coder.encodeValueOfObjCType("i", &number);
    }
}

void decodeTextField(TextField &field, platform::Coder &coder)
{
    decodeView(field, coder);
    if (coder.allowsKeyedCoding()) {
        if (coder.containsValueForKey(u"NSEnabled"_s)) {
            field.setEnabled(coder.decodeBoolForKey(u"NSEnabled"_s));
        }
        field.setTag(coder.decodeInt64ForKey(u"NSTag"_s));
        const QVariant cell = coder.decodeObjectForKey(u"NSCell"_s);
        if (cell.metaType() == QMetaType::fromType<TextFieldCell>()) {
            setCell(field, cell.value<TextFieldCell>());
        }
        return;
    }
    field.setEnabled(decodeNumber<bool>(coder, "B"));
    field.setTag(decodeNumber<qint64>(coder, "q"));
    const QVariant contents = coder.decodeObject();
    field.setEditable(decodeNumber<int>(coder, "i") != 0);
    field.setAlignment(widgetAlignment(alignment(decodeNumber<int>(coder, "i"))));
    field.setBezelStyle(bezelStyle(decodeNumber<int>(coder, "i")));
    setContents(field, contents);
}

} // namespace windowing
