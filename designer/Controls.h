#pragma once

#include <QtCore/QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

/// Offers the kit's controls in the widget box of Qt Designer, each with the string-list property `bindings`.
class Controls final : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit Controls(QObject *parent = nullptr);
    ~Controls() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<QDesignerCustomWidgetInterface>> m_controls;
};
