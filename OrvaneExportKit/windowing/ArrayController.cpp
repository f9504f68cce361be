#include <OrvaneExportKit/windowing/ArrayController.h>

#include <QtGui/QTextDocument>

namespace windowing {

ArrayController::ArrayController(const QStringList &keys, QObject *parent) : QAbstractTableModel(parent), m_keys(keys)
{
}

void ArrayController::setContent(const QList<QVariantMap> &content)
{
    beginResetModel();
    m_content = content;
    endResetModel();
}

void ArrayController::addObject(const QVariantMap &object)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_content.append(object);
    endInsertRows();
}

int ArrayController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_content.size());
}

int ArrayController::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_keys.size());
}

QVariant ArrayController::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const QVariant value = m_content[index.row()].value(m_keys[index.column()]);
    return role == Qt::DisplayRole ? value : Qt::convertFromPlainText(value.toString(), Qt::WhiteSpaceNormal);
}

} // namespace windowing
