#include <OrvaneExportKit/windowing/PanelBindings.h>

#include <OrvaneExportKit/windowing/Binding.h>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// Binds as one entry says it: `name=keyPath|transformer|placeholder`.
void bindEntry(QWidget &control, QObject *controller, const QString &entry)
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
    new Binding(&control, entry.first(equals).trimmed(), controller, target.section(u'|', 0, 0).trimmed(), options);
}

} // namespace

void bindPanel(QWidget &panel, QObject *controller)
{
    QList<QWidget *> controls = panel.findChildren<QWidget *>();
    controls.prepend(&panel);
    QStringList problems;
    for (QWidget *control : std::as_const(controls)) {
        for (const QString &entry : control->property("bindings").toStringList()) {
            try {
                bindEntry(*control, controller, entry);
            } catch (const platform::Exception &error) {
                problems.append(u"%1: \"%2\": %3"_s.arg(control->objectName(), entry, QString::fromUtf8(error.what())));
            }
        }
    }
    if (!problems.isEmpty()) {
        throw platform::InvalidArgumentException(problems.join(u'\n').toStdString());
    }
}

} // namespace windowing
