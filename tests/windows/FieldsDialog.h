#pragma once

#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>

/// A dialog with two token fields and a line edit, all bound to settings, and a default button. It reports which
/// settings are stored, with the value, and how often the default button was pressed.
class FieldsDialog final : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(KZExportSettings *settings READ settings CONSTANT)

public:
    FieldsDialog();

    KZExportSettings *settings() { return &m_settings; }

private:
    KZExportSettings m_settings;
    KZTokenFieldDelegate m_delegate;
    windowing::TokenField *m_first;
    windowing::TokenField *m_second;
    QLineEdit *m_text;
};
