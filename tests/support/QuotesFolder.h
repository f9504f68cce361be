#pragma once

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace support {

/// A temporary folder with a quotation table of the test's own, or with none as long as nothing is written.
class QuotesFolder
{
public:
    QuotesFolder() { EXPECT_TRUE(m_folder.isValid()); }

    QString path() const { return m_folder.path(); }
    platform::Bundle bundle() const { return {QStringLiteral("org.example.quotes"), path()}; }

    void writeData(const QByteArray &data) const
    {
        QFile file(m_folder.filePath(QStringLiteral("Quotes.plist")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(data) == data.size());
    }

    void write(const QVariant &table, platform::PropertyList::Format format = platform::PropertyList::Format::Xml) const
    {
        const auto written = platform::PropertyList::write(table, format);
        ASSERT_TRUE(written.data) << written.error.toStdString();
        writeData(*written.data);
    }

private:
    QTemporaryDir m_folder;
};

/// A language's value in a quotation table.
inline QVariantList entry(const QVariantMap &marks)
{
    return {marks};
}

inline QVariantList entry(const QString &begin, const QString &end)
{
    return entry({{QStringLiteral("begin"), begin}, {QStringLiteral("end"), end}});
}

} // namespace support
