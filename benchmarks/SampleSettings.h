#pragma once

#include <QtCore/QVariant>

/// 200 settings in three levels: texts, whole and real numbers, and flags, as plug-ins keep them.
inline QVariantMap sampleSettings()
{
    using namespace Qt::Literals::StringLiterals;
    QVariantMap root;
    for (int group = 0; group < 8; ++group) {
        QVariantMap styles;
        for (int style = 0; style < 5; ++style) {
            styles.insert(u"style-%1"_s.arg(style), QVariantMap{{u"identifier"_s, u"style %1"_s.arg(style)},
                                                                {u"startTag"_s, u"<b>"_s},
                                                                {u"size"_s, 1.5 * style},
                                                                {u"level"_s, qint64{style}},
                                                                {u"relaxed"_s, style % 2 == 0}});
        }
        root.insert(u"group-%1"_s.arg(group), styles);
    }
    return root;
}
