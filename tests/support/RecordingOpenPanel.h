#pragma once

#include <OrvaneExportKit/platform/OpenPanel.h>

#include <QtCore/QString>

#include <utility>

namespace support {

/// The kit's open panel for as long as the object lives: answers the given file type and counts how often it is asked.
class RecordingOpenPanel final : public platform::OpenPanel
{
public:
    explicit RecordingOpenPanel(QString fileType) : m_fileType(std::move(fileType)) { platform::setOpenPanel(this); }
    RecordingOpenPanel(const RecordingOpenPanel &) = delete;
    RecordingOpenPanel &operator=(const RecordingOpenPanel &) = delete;
    ~RecordingOpenPanel() override { platform::setOpenPanel(nullptr); }

    QString requiredFileType() const override
    {
        ++m_timesAsked;
        return m_fileType;
    }

    int timesAsked() const { return m_timesAsked; }

private:
    QString m_fileType;
    mutable int m_timesAsked = 0;
};

} // namespace support
