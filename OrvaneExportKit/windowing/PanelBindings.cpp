#include <OrvaneExportKit/windowing/PanelBindings.h>

#include <OrvaneExportKit/windowing/Binding.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// Throws when the key path asks settings for a key that they do not know.
void requireKnownKey(QObject *controller, const QString &keyPath, const QStringList &knownKeys)
{
    for (const platform::KeyPathStep &step : platform::keyPathSteps(controller, keyPath)) {
        if (qobject_cast<platform::KeyValueCoding *>(step.object) != nullptr && !knownKeys.contains(step.key)) {
            throw platform::InvalidArgumentException(
                u"there is no choice \"%1\"; there are: %2"_s.arg(step.key, knownKeys.join(u", "_s)).toStdString());
        }
    }
}

/// Binds as one entry says it: `name=keyPath|transformer|placeholder`.
void bindEntry(QWidget &control, QObject *controller, const QString &entry, const std::optional<QStringList> &knownKeys)
{
    const qsizetype equals = entry.indexOf(u'=');
    if (equals < 1) {
        throw platform::InvalidArgumentException("an entry reads \"name=keyPath\" or \"name=keyPath|transformer\"");
    }
    const QString target = entry.sliced(equals + 1);
    const QString placeholder = target.section(u'|', 2);
    const BindingOptions options{
        .valueTransformerName = target.section(u'|', 1, 1).trimmed(),
        .nullPlaceholder = placeholder.isEmpty() ? QVariant() : QVariant(placeholder),
    };
    const QString keyPath = target.section(u'|', 0, 0).trimmed();
    if (knownKeys) {
        requireKnownKey(controller, keyPath, *knownKeys);
    }
    new Binding(&control, entry.first(equals).trimmed(), controller, keyPath, options);
}

void bindControls(QWidget &panel, QObject *controller, const std::optional<QStringList> &knownKeys)
{
    QList<QWidget *> controls = panel.findChildren<QWidget *>();
    controls.prepend(&panel);
    QStringList problems;
    for (QWidget *control : std::as_const(controls)) {
        for (const QString &entry : control->property("bindings").toStringList()) {
            try {
                bindEntry(*control, controller, entry, knownKeys);
            } catch (const platform::Exception &error) {
                problems.append(u"%1: \"%2\": %3"_s.arg(control->objectName(), entry, QString::fromUtf8(error.what())));
            }
        }
    }
    if (!problems.isEmpty()) {
        throw platform::InvalidArgumentException(problems.join(u'\n').toStdString());
    }
}

} // namespace

void bindPanel(QWidget &panel, QObject *controller)
{
    bindControls(panel, controller, std::nullopt);
}

void bindPanel(QWidget &panel, QObject *controller, const QStringList &knownKeys)
{
    bindControls(panel, controller, knownKeys);
}

} // namespace windowing
