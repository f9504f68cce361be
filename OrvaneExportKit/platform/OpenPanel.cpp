#include <OrvaneExportKit/platform/OpenPanel.h>

namespace platform {

namespace {

OpenPanel *currentPanel = nullptr;

} // namespace

OpenPanel::~OpenPanel() = default;

void setOpenPanel(OpenPanel *panel)
{
    currentPanel = panel;
}

QString requiredFileType()
{
    return currentPanel == nullptr ? QString() : currentPanel->requiredFileType();
}

} // namespace platform
