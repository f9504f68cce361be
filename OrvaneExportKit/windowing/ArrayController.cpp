#include <OrvaneExportKit/windowing/ArrayController.h>

#include <QtGui/QTextDocument>

namespace windowing {

ArrayController::ArrayController(const QStringList &keys, QObject *parent) : QAbstractTableModel(parent), m_keys(keys)
{
}

void ArrayController::setKeys(const QStringList &keys)
{
    beginResetModel();
    m_keys = keys;
    endResetModel();
}

void ArrayController::setContent(const QList<QVariantMap> &content)
{
    beginResetModel();
    m_content = content;
    endResetModel();
}

void ArrayController::addObject(const QVariantMap &object)
{
    insertObject(rowCount(), object);
}

void ArrayController::insertObject(int row, const QVariantMap &object)
{
    beginInsertRows({}, row, row);
    m_content.insert(row, object);
    endInsertRows();
}

void ArrayController::setObject(int row, const QVariantMap &object)
{
    m_content[row] = object;
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ArrayController::removeObject(int row)
{
    beginRemoveRows({}, row, row);
    m_content.removeAt(row);
    endRemoveRows();
}

void ArrayController::moveObject(int row, int toRow)
{
    const bool isDownward = toRow > row; // a model counts the row itself while it stands before the place
    if (!beginMoveRows({}, row, row, {}, isDownward ? toRow + 1 : toRow)) {
        return; // it is there
    }
    m_content.move(row, toRow);
    endMoveRows();
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
