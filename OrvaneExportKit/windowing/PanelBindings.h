#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace windowing {

/// Binds all controls of a panel, as their string-list property `bindings` says it. An entry reads
/// `name=keyPath`, `name=keyPath|transformer` or `name=keyPath|transformer|placeholder`, where the transformer may be
/// empty:
///
///     value=settings.margin.top|KZMeasurementUnitTransformer
///     currentText=settings.encoding||UTF-8
///
/// Throws `platform::InvalidArgumentException` when entries cannot be bound; its text has a line for each of them, with
/// the object name of the control. The other entries are bound all the same.
///
///     windowing::bindPanel(*panel, controller);
///
/// For use on the application's main thread.
ORVANE_KIT_EXPORT void bindPanel(QWidget &panel, QObject *controller);

/// The same for a panel whose settings have certain keys and no others, such as the choices of a plug-in: an entry with
/// another key of a settings object, misspelt perhaps, cannot be bound.
///
///     windowing::bindPanel(*panel, controller, {u"author"_s, u"title"_s});   // refuses "text=settings.auhtor"
ORVANE_KIT_EXPORT void bindPanel(QWidget &panel, QObject *controller, const QStringList &knownKeys);

} // namespace windowing
