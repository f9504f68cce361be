// Binds the controls of a panel as the lines of the input say it, changes settings and controls, and requires that each
// entry is either bound or named in the exception.
//
// The first character of a line chooses the control, the rest is an entry of its property `bindings`. A line that
// begins with "=" stores a setting after the binding: "=key=text".

#include <fuzz/Require.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/PanelBindings.h>

#include <QtCore/QDateTime>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <array>

namespace {

using namespace Qt::Literals::StringLiterals;

/// A control of each kind that bindings treat in a way of its own, in front of settings with a value of each kind.
class Panel
{
public:
    Panel()
    {
        m_comboBox->addItems({u"one"_s, u"two"_s, u"three"_s});
        m_comboBox->setProperty("itemData", QVariantList{1, u"2"_s, 3.0});
        m_editableComboBox->setEditable(true);
        m_editableComboBox->addItems({u"one"_s, u"two"_s});
        m_radioButton->setProperty("tag", 1);
        m_otherRadioButton->setProperty("tag", 2);
        m_settings.setValue(u"text"_s, u"s"_s);
        m_settings.setValue(42, u"i"_s);
        m_settings.setValue(1.5F, u"f"_s);
        m_settings.setValue(true, u"b"_s);
        m_settings.setValue(QVariantList{1, u"a"_s}, u"l"_s);
        m_settings.setValue(QVariantMap{{u"top"_s, 72}, {u"deep"_s, QVariantMap{{u"er"_s, 1}}}}, u"m"_s);
        m_settings.setValue(QDateTime(QDate(2009, 3, 7), QTime(14, 5), Qt::UTC), u"d"_s);
        m_owner.setProperty("settings", QVariant::fromValue<QObject *>(&m_settings));
    }

    QWidget *control(QChar choice) { return m_controls.at(choice.unicode() % m_controls.size()); }

    /// What binding the panel complains about.
    QString bind()
    {
        try {
            windowing::bindPanel(m_panel, &m_owner);
        } catch (const platform::InvalidArgumentException &exception) {
            return QString::fromUtf8(exception.what());
        }
        return {};
    }

    void store(const QString &key, const QString &text) { m_settings.setValue(text, key); }

    /// What the user does: types, ticks, chooses.
    void edit()
    {
        m_lineEdit->setText(u"3,5"_s);
        m_plainTextEdit->setPlainText(u"typed"_s);
        m_spinBox->setValue(m_spinBox->value() + 1);
        m_doubleSpinBox->setValue(0.5);
        m_checkBox->toggle();
        m_comboBox->setCurrentIndex(1);
        m_otherRadioButton->toggle();
        m_dateEdit->setDate(QDate(2020, 2, 29));
        const QList<windowing::Binding *> bindings = m_panel.findChildren<windowing::Binding *>();
        for (windowing::Binding *binding : bindings) {
            binding->commit();
            binding->refresh();
        }
    }

private:
    KZExportSettings m_settings{u"com.example.fuzz"_s};
    QObject m_owner;
    QWidget m_panel;
    QLineEdit *m_lineEdit = new QLineEdit(&m_panel);
    QPlainTextEdit *m_plainTextEdit = new QPlainTextEdit(&m_panel);
    QSpinBox *m_spinBox = new QSpinBox(&m_panel);
    QDoubleSpinBox *m_doubleSpinBox = new QDoubleSpinBox(&m_panel);
    QCheckBox *m_checkBox = new QCheckBox(&m_panel);
    QComboBox *m_comboBox = new QComboBox(&m_panel);
    QComboBox *m_editableComboBox = new QComboBox(&m_panel);
    QRadioButton *m_radioButton = new QRadioButton(&m_panel);
    QRadioButton *m_otherRadioButton = new QRadioButton(&m_panel);
    QDateEdit *m_dateEdit = new QDateEdit(&m_panel);
    std::array<QWidget *, 11> m_controls{m_lineEdit, m_plainTextEdit,    m_spinBox,     m_doubleSpinBox,    m_checkBox,
                                         m_comboBox, m_editableComboBox, m_radioButton, m_otherRadioButton, m_dateEdit,
                                         &m_panel};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static std::array<char *, 1> arguments{};
    static int argumentCount = 0;
    static const QApplication application(argumentCount, arguments.data());
    static_cast<void>(application);

    Panel panel;
    QStringList lines = QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size))
                            .remove(QChar::Null) // which interface files cannot hold
                            .split(u'\n');
    lines.removeIf([](const QString &line) { return line.isEmpty() || line[0].isSurrogate(); });
    for (const QString &line : std::as_const(lines)) {
        if (!line.startsWith(u'=')) {
            QWidget *control = panel.control(line[0]);
            control->setProperty("bindings", control->property("bindings").toStringList() << line.sliced(1));
        }
    }
    const QString complaints = panel.bind();
    for (const QString &line : std::as_const(lines)) {
        if (line.startsWith(u'=')) {
            panel.store(line.section(u'=', 1, 1), line.section(u'=', 2));
        } else {
            const QString entry = line.sliced(1);
            const QString name = entry.section(u'=', 0, 0).trimmed();
            require(windowing::infoForBinding(panel.control(line[0]), name) || complaints.contains(entry),
                    "neither bound nor complained about: " + entry.toStdString());
        }
    }
    panel.edit();
    return 0;
}
