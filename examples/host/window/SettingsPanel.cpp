#include "SettingsPanel.h"

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>
#include <OrvaneExportKit/windowing/PanelBindings.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtGui/QScreen>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// The keys that a panel can be bound to: those of the choices, and of what else the plug-in keeps in its settings.
QStringList knownKeys(ExportPlugin &plugin)
{
    QStringList keys = plugin.settings().defaultDictionary().keys();
    for (const ExportPlugin::Choice &choice : plugin.choices()) {
        keys.append(choice.key);
    }
    return keys;
}

} // namespace

SettingsPanel::SettingsPanel(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Settings of the format"));
}

SettingsPanel::~SettingsPanel()
{
    takePanelOut();
}

void SettingsPanel::showPanel(ExportPlugin &plugin)
{
    takePanelOut();
    plugin.storeMissingChoices(); // so that the controls show what holds
    if (plugin.bundle().pathForResource(u"Panel"_s, u"ui"_s).isEmpty()) {
        showNote(tr("This format has no settings to choose here."));
        return;
    }
    try {
        auto panel = windowing::UiLoader::load(plugin.bundle(), u"Panel"_s);
        m_controller = std::make_unique<PanelController>(plugin.settings());
        windowing::bindPanel(*panel, m_controller.get(), knownKeys(plugin));
        m_contentView = new KZContentView;
        auto *layout = new QVBoxLayout(m_contentView);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(panel.release());
        setWidget(m_contentView);
        makeRoom();
    } catch (const platform::Exception &exception) {
        showNote(tr("The settings of this format can't be shown: %1").arg(QString::fromUtf8(exception.what())));
    }
}

void SettingsPanel::takePanelOut()
{
    if (m_contentView != nullptr) {
        takeWidget();
        m_contentView->removeFromSuperview();
        delete m_contentView;
    }
}

/// Lets the panel have its width, as far as the screen allows it; what does not fit is scrolled.
void SettingsPanel::makeRoom()
{
    const int wanted = m_contentView->minimumSizeHint().width() + 2 * frameWidth() +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    setMinimumWidth(qMin(wanted, screen()->availableSize().width() / 2));
}

void SettingsPanel::showNote(const QString &note)
{
    auto *label = new windowing::MessageLabel;
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMargin(12);
    label->setText(note);
    setWidget(label);
}

} // namespace host
