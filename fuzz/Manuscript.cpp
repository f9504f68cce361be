// Reads a manuscript folder whose files hold the input, and requires a sentence for the user where it is refused.
//
// A line "--" ends the content of a file. The files are manuscript.json, then one.txt and two.archive.

#include <fuzz/Require.h>

#include <ManuscriptReader.h>

#include <HostError.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

using namespace Qt::Literals::StringLiterals;

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "no place for the manuscript");
}

QByteArray takePart(QByteArray &input)
{
    const QByteArray border("\n--\n");
    const qsizetype end = input.indexOf(border);
    const QByteArray part = end < 0 ? input : input.first(end);
    input = end < 0 ? QByteArray() : input.sliced(end + border.size());
    return part;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    for (const QString &name : {u"manuscript.json"_s, u"one.txt"_s, u"two.archive"_s}) {
        writeFile(folder.filePath(name), takePart(input));
    }
    try {
        const host::Manuscript manuscript = host::readManuscript(folder.path());
        for (const host::ManuscriptDocument &document : manuscript.documents) {
            require(document.holdsText() && document.path().startsWith(folder.path() + u'/'),
                    "a document without text");
        }
    } catch (const host::HostError &error) {
        require(error.exitCode() == host::ExitCode::Manuscript, "the exit code of another error");
        require(error.message().contains(folder.path()), "no file in: " + error.message().toStdString());
    }
    return 0;
}
