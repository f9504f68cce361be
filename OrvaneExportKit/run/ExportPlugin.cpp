#include <OrvaneExportKit/run/ExportPlugin.h>

ExportPlugin::~ExportPlugin() = default;
