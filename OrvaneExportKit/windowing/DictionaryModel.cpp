#include <OrvaneExportKit/windowing/DictionaryModel.h>

#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/windowing/EventGuard.h>

namespace windowing {

void DictionaryModel::setBooleanKeys(const QStringList &keys)
{
    beginResetModel();
    m_booleanKeys = keys;
    endResetModel();
}

void DictionaryModel::setTitles(const QStringList &titles)
{
    beginResetModel();
    m_titles = titles;
    endResetModel();
}

QVariantMap DictionaryModel::emptyObject() const
{
    QVariantMap object;
    for (const QString &key : keys()) {
        object.insert(key, m_booleanKeys.contains(key) ? QVariant(false) : QVariant(QStringLiteral("")));
    }
    return object;
}

Qt::ItemFlags DictionaryModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = ArrayController::flags(index);
    if (!index.isValid()) {
        return flags;
    }
    return flags | (isBoolean(index.column()) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

QVariant DictionaryModel::data(const QModelIndex &index, int role) const
{
    return guardedValue(*this, QVariant(), [&] { return shownData(index, role); });
}

QVariant DictionaryModel::shownData(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !isBoolean(index.column())) {
        return ArrayController::data(index, role == Qt::EditRole ? Qt::DisplayRole : role);
    }
    if (role == Qt::CheckStateRole) {
        const bool isChecked = platform::boolValue(content()[index.row()].value(keys()[index.column()]));
        return QVariant::fromValue(isChecked ? Qt::Checked : Qt::Unchecked);
    }
    return role == Qt::AccessibleTextRole ? headerData(index.column(), Qt::Horizontal) : QVariant();
}

bool DictionaryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != (isBoolean(index.column()) ? Qt::CheckStateRole : Qt::EditRole)) {
        return false;
    }
    QVariantMap object = content()[index.row()];
    object.insert(keys()[index.column()], role == Qt::CheckStateRole ? QVariant(value.toInt() == Qt::Checked) : value);
    setObject(index.row(), object);
    return true;
}

QVariant DictionaryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section < m_titles.size() ? m_titles[section] : keys()[section];
}

} // namespace windowing
