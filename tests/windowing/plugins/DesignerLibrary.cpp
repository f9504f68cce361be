#include <QtCore/QObject>
#include <QtCore/QtPlugin>

namespace {

/// Tells when code of this library runs.
const bool codeRan = qputenv("ORVANE_TEST_DESIGNER_LIBRARY_RAN", "1");

} // namespace

/// A library as it stands in a folder of Qt Designer, where nothing in a running application has asked for it.
class DesignerLibrary : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
};

#include "DesignerLibrary.moc"
