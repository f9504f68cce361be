#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/Range.h>
#include <tests/support/PythonInterchange.h>

#include <gtest/gtest.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonValue>
#include <QtCore/QUrl>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using support::Lines;

class KeyedArchiveInterchange : public support::PythonInterchange
{
protected:
    KeyedArchiveInterchange() : PythonInterchange(QStringLiteral(ORVANE_KEYED_ARCHIVE_SCRIPT)) {}
};

/// Values as JSON writes them inside an array, so that it takes scalars, too.
std::string json(const QVariant &value)
{
    return QJsonDocument::fromVariant(QVariantList{value}).toJson(QJsonDocument::Compact).toStdString();
}

TEST_F(KeyedArchiveInterchange, PythonReadsWhatTheKitWrites)
{
    const AttributedString text = AttributedString::fromStretches(
        u"0123456"_s, {{1, {{u"s"_s, u"a"_s}}}, {4, {{u"s"_s, u"b"_s}}}, {2, {{u"s"_s, u"a"_s}}}});
    const std::pair<QVariant, std::string> values[] = {
        {u"grüß 😀 <&>"_s, R"("grüß 😀 <&>")"},
        {u"$null"_s, R"({"NS.string":"$null","class":["NSString","NSObject"]})"},
        {QVariantList{u"a"_s, -1, 0.1, true, QVariantList{u"a"_s}, QVariantMap()}, R"(["a",-1,0.1,true,["a"],{}])"},
        {QVariantMap{{u"a"_s, 1}, {u"b"_s, QVariantMap{{u"c"_s, QVariantList()}}}}, R"({"a":1,"b":{"c":[]}})"},
        {"\x00\xFF"_ba, R"("00ff")"},
        {QUrl(u"https://example.org/"_s),
         R"({"NS.base":null,"NS.relative":"https://example.org/","class":["NSURL","NSObject"]})"},
        {QVariant::fromValue(platform::Range{3, 4}),
         R"({"NS.rangeval.length":4,"NS.rangeval.location":3,"NS.special":4,"class":["NSValue","NSObject"]})"},
        {QVariant::fromValue(text),
         R"({"NSAttributeInfo":"010004010200","NSAttributes":[{"s":"a"},{"s":"b"}],"NSString":"0123456",)"
         R"("class":["NSAttributedString","NSObject"]})"},
    };
    Lines written;
    for (int index = 0; const auto &[value, line] : values) {
        const QString name = QString::number(index++);
        writeFile(name + u".xml"_s, KeyedArchiver::archivedDataWithRootObject(value, PropertyList::Format::Xml));
        writeFile(name + u".binary"_s, KeyedArchiver::archivedDataWithRootObject(value));
        written[name.toStdString() + ".xml"] = line;
        written[name.toStdString() + ".binary"] = line;
    }
    EXPECT_EQ(runScript({u"read"_s}), written);
}

TEST_F(KeyedArchiveInterchange, TheKitReadsWhatPythonWrites)
{
    Lines written = runScript({u"write"_s});
    ASSERT_EQ(written.size(), 20U);
    for (auto &[name, line] : written) {
        line = json(QJsonDocument::fromJson(QByteArray::fromStdString("[" + line + "]")).toVariant().toList().first());
    }
    EXPECT_EQ(readFolder([](const QByteArray &data) { return json(KeyedUnarchiver::unarchiveObjectWithData(data)); }),
              written);
}

} // namespace
