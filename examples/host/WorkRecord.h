#pragma once

#include <QtCore/QString>

#include <array>
#include <csignal>

namespace host {

/// What the process that does the work leaves behind, however it ends, for the one that supervises it. Both have it in
/// memory that they share.
struct WorkRecord {
    std::array<char, 1024> plugin = {}; ///< the plug-in that is at work; empty when none is
    std::array<char, 2048> part = {};   ///< what it was asked for

    volatile std::sig_atomic_t stopsByItself = 0; ///< an interruption is not to end the process, only to be noted here
    volatile std::sig_atomic_t wasInterrupted = 0;

    bool isFinished = false;
    int exitCode = 0; ///< once it is finished
};

/// The record of this process.
WorkRecord &workRecord();

/// Puts the record of this process into another place, which the caller owns for as long as the program runs.
void keepWorkRecordIn(WorkRecord &place);

/// While the object lives, a plug-in is at work. Should it end the program, the user is told which one it was and what
/// it was asked for.
///
///     const PluginCall call(u"the plug-in html"_s, u"the document 'Tide'"_s);
class PluginCall
{
public:
    PluginCall(const QString &plugin, const QString &part);
    PluginCall(const PluginCall &) = delete;
    PluginCall &operator=(const PluginCall &) = delete;
    ~PluginCall();

    /// Names the plug-ins whose code may still run when nothing is asked of them any more: at the end of the program.
    static void noteLast(const QString &plugins, const QString &part);
};

} // namespace host
