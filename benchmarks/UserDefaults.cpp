// How long the settings of a plug-in take to be saved, beside QSettings with an INI file, on a memory file system and
// on the disk that the current folder is on. Both replace the file as a whole, under a lock, and flush it before they
// return.

#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/UserDefaults.h>

#include "SampleSettings.h"

#include <benchmark/benchmark.h>

#include <QtCore/QFile>
#include <QtCore/QLockFile>
#include <QtCore/QSaveFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <string>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using platform::UserDefaults;

/// One setting counts how often they have been saved, so that there is something new to save each time.
qint64 saves = 0;

/// The settings under the keys "group/style/name" of an INI file.
QVariantMap iniEntries(const QVariantMap &settings)
{
    QVariantMap entries;
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting) {
        if (setting->typeId() != QMetaType::QVariantMap) {
            entries.insert(setting.key(), *setting);
            continue;
        }
        const QVariantMap inner = iniEntries(setting->toMap());
        for (auto entry = inner.cbegin(); entry != inner.cend(); ++entry) {
            entries.insert(setting.key() + u'/' + entry.key(), *entry);
        }
    }
    return entries;
}

/// Whether an INI file, whose values come back as texts, holds the entries.
bool holdsEntries(const QString &file, const QVariantMap &entries)
{
    // A copy, for in one program all objects of QSettings for one path share what they know of it.
    QFile::copy(file, file + u".copy"_s);
    const QSettings saved(file + u".copy"_s, QSettings::IniFormat);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        if (saved.value(entry.key()).toString() != entry->toString()) {
            return false;
        }
    }
    return saved.allKeys().size() == entries.size();
}

void saveByKit(benchmark::State &state, const QString &folderTemplate)
{
    const QTemporaryDir folder(folderTemplate);
    const QString domain = u"com.example.plain-text"_s;
    QVariantMap settings = sampleSettings();
    UserDefaults defaults(folder.path());
    if (!defaults.setPersistentDomain(settings, domain) || defaults.persistentDomainForName(domain) != settings) {
        state.SkipWithError("the settings were not saved");
    }
    for (auto _ : state) {
        settings.insert(u"saved"_s, ++saves);
        if (!defaults.setPersistentDomain(settings, domain)) {
            state.SkipWithError("the settings were not saved");
        }
    }
}

void saveByQSettings(benchmark::State &state, const QString &folderTemplate)
{
    const QTemporaryDir folder(folderTemplate);
    const QString file = folder.filePath(u"plain-text.ini"_s);
    QVariantMap entries = iniEntries(sampleSettings());
    QSettings settings(file, QSettings::IniFormat);
    const auto save = [&settings, &entries] {
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            settings.setValue(entry.key(), *entry);
        }
        settings.sync();
    };
    save();
    if (!holdsEntries(file, entries)) {
        state.SkipWithError("the settings were not saved");
    }
    for (auto _ : state) {
        entries.insert(u"saved"_s, ++saves);
        save();
    }
}

/// Locking, reading and replacing a file of the same size alone, with the classes of Qt.
void saveNothingNew(benchmark::State &state, const QString &folderTemplate)
{
    const QTemporaryDir folder(folderTemplate);
    const QString path = folder.filePath(u"plain-text.plist"_s);
    const QByteArray data = *PropertyList::write(sampleSettings(), PropertyList::Format::Xml).data;
    const auto replace = [&] {
        QSaveFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit();
    };
    bool isSaved = replace();
    for (auto _ : state) {
        QLockFile lock(path + u".lock"_s);
        QFile file(path);
        isSaved = isSaved && lock.tryLock() && file.open(QIODevice::ReadOnly) && file.readAll() == data && replace();
    }
    if (!isSaved) {
        state.SkipWithError("the file was not saved");
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const auto &[place, folder] :
         {std::pair("memory", u"/dev/shm/settings-XXXXXX"_s), std::pair("disk", u"settings-XXXXXX"_s)}) {
        const std::string group = std::string("settings/save in ") + place;
        benchmark::RegisterBenchmark((group + "/kit").c_str(), saveByKit, folder)->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark((group + "/QSettings").c_str(), saveByQSettings, folder)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark((group + "/lock, read and replace alone").c_str(), saveNothingNew, folder)
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
