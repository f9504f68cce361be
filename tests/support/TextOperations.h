#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/text/EscapeSequences.h>
#include <OrvaneExportKit/text/LineLayout.h>
#include <OrvaneExportKit/text/QuotationMarks.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <OrvaneExportKit/text/TaggedSpans.h>
#include <OrvaneExportKit/text/Typography.h>

/// The operations of plain and of attributed texts side by side, so that one call serves both.
namespace library {
using namespace KZArrayExportAdditions;
using namespace KZStringExportAdditions;
using namespace KZAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using namespace KZMutableAttributedStringExportAdditions;
using platform::edit;
} // namespace library
