#include <QtCore/QObject>
#include <QtCore/QtPlugin>

#include <cstdio>

namespace {

/// Tells when code of this library runs.
const int codeRan = std::fputs("code of the foreign plug-in ran\n", stderr);

} // namespace

/// A Qt plug-in that is no export plug-in of this version, whatever the identifier that it is built with says.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID FOREIGN_INTERFACE)
};

#include "ForeignPlugin.moc"
