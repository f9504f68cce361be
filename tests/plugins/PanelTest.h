#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <gtest/gtest.h>

#include <QtCore/QPluginLoader>
#include <QtTest/QTest>

#include <memory>

namespace plugins {

/// The panel of a plug-in as a host shows it, used by keys and mouse.
class PanelTest : public testing::Test
{
protected:
    explicit PanelTest(const char *pluginFile);
    ~PanelTest() override;
    void SetUp() override;

    ExportPlugin &plugin() const { return *m_plugin; }
    QWidget &panel() const { return *m_panel; }

    template <typename Control>
    Control &control(const char *name) const
    {
        return *windowing::UiLoader::outlet<Control>(*m_panel, QString::fromLatin1(name));
    }

    QVariant setting(const char *key) const { return m_plugin->settings().objectForKey(QString::fromLatin1(key)); }
    void changeOutside(const char *key, const QVariant &value) const;

    /// What the plug-in makes of a document.
    QString exported(const char *text) const;

    /// Brings the page of a control to the front, by a click on its tab, and gives the control the keyboard.
    void focus(const char *name) const;

    /// Types a text in the place of the one that a field shows, and ends the edit.
    void type(const char *name, const char *text) const;

    /// Presses a key in a control.
    void press(const char *name, Qt::Key key) const;

private:
    QPluginLoader m_loader;
    ExportPlugin *m_plugin;
    QObject m_host;
    std::unique_ptr<QWidget> m_panel;
};

/// Types a text in the place of the one that the focused widget of a window holds.
void typeInto(const QWidget &widget, const char *text);

} // namespace plugins
