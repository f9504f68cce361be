#include <OrvaneExportKit/windowing/OpenPanel.h>

#include <QtWidgets/QApplication>

namespace windowing {

namespace {

void installOpenPanel()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr) {
        platform::setOpenPanel(&OpenPanel::openPanel());
    }
}
Q_COREAPP_STARTUP_FUNCTION(installOpenPanel)

} // namespace

OpenPanel &OpenPanel::openPanel()
{
    static OpenPanel panel;
    return panel;
}

QString OpenPanel::requiredFileType() const
{
    return m_requiredFileType;
}

void OpenPanel::setRequiredFileType(const QString &extension)
{
    m_requiredFileType = extension;
}

std::unique_ptr<QFileDialog> OpenPanel::fileDialog(QWidget *parent) const
{
    auto dialog = std::make_unique<QFileDialog>(parent);
    dialog->setFileMode(QFileDialog::ExistingFile);
    if (!m_requiredFileType.isEmpty()) {
        dialog->setDefaultSuffix(m_requiredFileType);
        dialog->setNameFilter(QStringLiteral("*.") + m_requiredFileType);
    }
    return dialog;
}

} // namespace windowing
