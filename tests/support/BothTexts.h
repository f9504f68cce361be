#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>

#include <gtest/gtest.h>

#include <QtCore/QString>

#include <string>
#include <type_traits>

/// \file
/// Tests of operations that plain and attributed text share are typed tests over `BothTexts`.
///
///     template <typename Text> struct CorrectDashes : testing::Test {};
///     TYPED_TEST_SUITE(CorrectDashes, support::BothTexts, support::TextNames);

namespace support {

using BothTexts = testing::Types<QString, platform::AttributedString>;

struct TextNames {
    template <typename Text>
    static std::string GetName(int)
    {
        return std::is_same_v<Text, QString> ? "plain" : "attributed";
    }
};

inline const QString &plain(const QString &text)
{
    return text;
}

inline const QString &plain(const platform::AttributedString &text)
{
    return text.string();
}

} // namespace support
