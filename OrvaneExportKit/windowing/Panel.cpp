#include <OrvaneExportKit/windowing/Panel.h>

#include <OrvaneExportKit/windowing/UiLoader.h>

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<Panel>();

} // namespace

Panel::Panel(QWidget *parent) : QDialog(parent)
{
}

void Panel::reject()
{
    Q_EMIT cancelRequested();
}

} // namespace windowing
