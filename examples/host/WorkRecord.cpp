#include "WorkRecord.h"

#include <algorithm>

namespace host {

namespace {

WorkRecord ownRecord;
WorkRecord *currentRecord = &ownRecord;

/// Keeps as much of a text as there is room for, with a null at its end.
template <std::size_t size>
void keep(const QString &text, std::array<char, size> &place)
{
    const QByteArray bytes = text.toUtf8().left(qsizetype{size} - 1);
    *std::copy(bytes.begin(), bytes.end(), place.begin()) = '\0';
}

} // namespace

WorkRecord &workRecord()
{
    return *currentRecord;
}

void keepWorkRecordIn(WorkRecord &place)
{
    currentRecord = &place;
}

PluginCall::PluginCall(const QString &plugin, const QString &part)
{
    noteLast(plugin, part);
}

PluginCall::~PluginCall()
{
    workRecord().plugin.front() = '\0';
}

void PluginCall::noteLast(const QString &plugins, const QString &part)
{
    keep(part, workRecord().part);
    keep(plugins, workRecord().plugin);
}

} // namespace host
