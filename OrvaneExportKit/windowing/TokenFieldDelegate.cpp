#include <OrvaneExportKit/windowing/TokenFieldDelegate.h>

namespace windowing {

TokenFieldDelegate::~TokenFieldDelegate() = default;

} // namespace windowing
