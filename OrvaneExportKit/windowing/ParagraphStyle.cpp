#include <OrvaneExportKit/windowing/ParagraphStyle.h>

namespace windowing {

TextAlignment textAlignment(Qt::Alignment alignment)
{
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return TextAlignment::Center;
    }
    if (alignment.testFlag(Qt::AlignJustify)) {
        return TextAlignment::Justified;
    }
    if (alignment.testFlag(Qt::AlignRight)) {
        return TextAlignment::Right;
    }
    return alignment.testFlag(Qt::AlignAbsolute) ? TextAlignment::Left : TextAlignment::Natural;
}

Qt::Alignment widgetAlignment(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::Left:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    case TextAlignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case TextAlignment::Center:
        return Qt::AlignHCenter;
    case TextAlignment::Justified:
        return Qt::AlignJustify;
    case TextAlignment::Natural:
        break;
    }
    return Qt::AlignLeft;
}

} // namespace windowing
