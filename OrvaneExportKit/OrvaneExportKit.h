#pragma once

/// \file
/// Everything that a plug-in needs, in one include.

#include <OrvaneExportKit/controls/ValueTransformers.h>
#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/CalendarFormat.h>
#include <OrvaneExportKit/platform/ErrorAlert.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyPaths.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/OpenPanel.h>
#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/Range.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/platform/Translations.h>
#include <OrvaneExportKit/platform/UserDefaults.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/run/ExportDocument.h>
#include <OrvaneExportKit/run/ExportPlugin.h>
#include <OrvaneExportKit/run/FileNameChecks.h>
#include <OrvaneExportKit/run/FileNames.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>
#include <OrvaneExportKit/text/EscapeSequences.h>
#include <OrvaneExportKit/text/LineLayout.h>
#include <OrvaneExportKit/text/QuotationMarks.h>
#include <OrvaneExportKit/text/QuotationTable.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <OrvaneExportKit/text/TaggedSpans.h>
#include <OrvaneExportKit/text/Typography.h>
#include <OrvaneExportKit/version.h>
