#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QTemporaryFile>
#include <QtCore/QtEndian>

#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#elif defined(__has_feature)
constexpr bool sanitized = __has_feature(address_sanitizer);
#else
constexpr bool sanitized = false;
#endif

QByteArray bigEndian(quint64 number, qsizetype size)
{
    const quint64 swapped = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&swapped), sizeof swapped).last(size);
}

/// A binary list of the given object area whose objects stand at these positions, with references and positions of
/// four bytes.
QByteArray binaryList(const QByteArray &objects, const std::vector<quint64> &positions)
{
    QByteArray list = "bplist00" + objects;
    const auto table = static_cast<quint64>(list.size());
    for (const quint64 position : positions) {
        list += bigEndian(position, 4);
    }
    return list + QByteArray(6, '\0') + "\x04\x04" + bigEndian(positions.size(), 8) + bigEndian(0, 8) +
           bigEndian(table, 8);
}

/// So many objects of `size` bytes one behind the other, each made by `object` from its index.
template <typename MakeObject>
QByteArray binaryObjects(quint64 count, quint64 size, const MakeObject &object)
{
    QByteArray objects;
    std::vector<quint64> positions;
    for (quint64 i = 0; i < count; ++i) {
        positions.push_back(8 + i * size);
        objects += object(i);
    }
    return binaryList(objects, positions);
}

/// A file that tries to make its reader take more memory, or more stack, than it is worth.
struct Hostile {
    const char *name;
    QByteArray data;
    std::string error;
};

void PrintTo(const Hostile &hostile, std::ostream *out)
{
    *out << hostile.name;
}

/// "lol": a billion of them if the entities expanded.
QByteArray expandingEntities()
{
    QByteArray xml = "<!DOCTYPE plist [<!ENTITY e0 \"lol\">";
    for (int i = 1; i <= 9; ++i) {
        xml += "<!ENTITY e" + QByteArray::number(i) + " \"" + ("&e" + QByteArray::number(i - 1) + ";").repeated(10) +
               "\">";
    }
    return xml + "]><plist><string>&e9;</string></plist>";
}

QByteArray nestedBinaryArrays(quint64 count)
{
    return binaryObjects(count, 5, [count](quint64 i) { return "\xA1" + bigEndian((i + 1) % count, 4); });
}

/// Strings that begin every six bytes and are a megabyte long each.
QByteArray overlappingStrings()
{
    const QByteArray start("\x5F\x12\x00\x10\x00\x00", 6);
    constexpr quint64 strings = 100'000;
    const QByteArray area = start.repeated(strings) + QByteArray(1 << 20, 'a');
    QByteArray array = "\xAF\x12" + bigEndian(strings, 4);
    std::vector<quint64> positions{8};
    const quint64 areaStart = 8 + static_cast<quint64>(array.size()) + 4 * strings;
    for (quint64 i = 0; i < strings; ++i) {
        array += bigEndian(i + 1, 4);
        positions.push_back(areaStart + 6 * i);
    }
    return binaryList(array + area, positions);
}

const std::string tooDeep = "more than 512 containers stand inside each other";
const std::string tooLong = "this object is longer than the room that it has";
constexpr int many = 100'000;

const Hostile hostiles[] = {
    {"ExpandingEntities", expandingEntities(),
     "line 1, column 17: a document type with declarations of its own is not read"},
    {"UnknownEntities", "<array>" + QByteArray("<string>&a;</string>").repeated(many) + "</array>",
     "line 1, column 16: `a` after `&` names no character"},
    {"NestedXmlArrays", QByteArray("<array>").repeated(many), "line 1, column 3585: " + tooDeep},
    {"NestedXmlDictionaries", QByteArray("<dict><key>a</key>").repeated(many), "line 1, column 9217: " + tooDeep},
    {"UnclosedComments", QByteArray("<!--").repeated(10 * many), "line 1, column 1: this comment is not closed"},
    {"UnclosedQuote", "<string a=\"" + QByteArray("<true/>").repeated(10 * many),
     "line 1, column 1: this tag is not closed"},
    {"LongName", "<" + QByteArray(10 * many, 'a') + ">",
     "line 1, column 1: `<" + std::string(39, 'a') + "...` is not a property-list element"},
    {"WrongUtf8", "<string>" + QByteArray(20 * many, 'a') + "\xFF</string>",
     "line 1, column 2000009: this is no character of UTF-8"},
    {"NestedBinaryArrays", nestedBinaryArrays(many), "byte 2568: " + tooDeep},
    {"CyclicArrays", nestedBinaryArrays(500), "byte 8: this container holds itself"},
    {"OverlappingStrings", overlappingStrings(), "byte 400014: " + tooLong},
    {"CountOfReferences", binaryList("\xAF\x12\x7F\xFF\xFF\xFF"_ba, {8}), "byte 8: " + tooLong},
    {"CountOfUnits", binaryList("\x6F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"_ba, {8}), "byte 8: " + tooLong},
    {"CountOfObjects",
     binaryList("\x09"_ba, {8})
         .replace(bigEndian(1, 8) + bigEndian(0, 8), bigEndian(1'000'000'000, 8) + bigEndian(0, 8)),
     "byte 21: the table of positions has not one entry for each object"},
    {"MoreObjectsThanBytes", binaryList("\x09"_ba, std::vector<quint64>(2 * many, 8)),
     "byte 800017: there are more objects than bytes that they could stand in"},
    {"CutShort", nestedBinaryArrays(many).chopped(100),
     "byte 899924: the outermost object is none of the list's objects"},
};

class PropertyListMemory : public testing::TestWithParam<Hostile>
{
};

TEST_P(PropertyListMemory, StaysBelow100Megabytes)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    ASSERT_EQ(file.write(GetParam().data), GetParam().data.size());
    file.close();

    QProcess probe;
    probe.start(QStringLiteral(ORVANE_PROPERTY_LIST_MEMORY_PROBE), {file.fileName()});
    ASSERT_TRUE(probe.waitForFinished(-1));
    ASSERT_EQ(probe.exitStatus(), QProcess::NormalExit);
    ASSERT_EQ(probe.exitCode(), 0);
    const QList<QByteArray> lines = probe.readAllStandardOutput().split('\n');
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(lines[0].toStdString(), GetParam().error);
    const qlonglong kibibytes = lines[1].toLongLong();
    if (sanitized || kibibytes < 0) {
        GTEST_SKIP() << "the peak cannot be measured here";
    }
    RecordProperty("kibibytes", std::to_string(kibibytes));
    EXPECT_LT(kibibytes, 100 * 1024);
}

INSTANTIATE_TEST_SUITE_P(Hostile, PropertyListMemory, testing::ValuesIn(hostiles),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
