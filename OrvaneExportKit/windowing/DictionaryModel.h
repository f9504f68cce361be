#pragma once

#include <OrvaneExportKit/windowing/ArrayController.h>

namespace windowing {

/// The rows of a `DictionaryTable`: dictionaries whose values can be edited in place.
class DictionaryModel : public ArrayController
{
    Q_OBJECT

public:
    explicit DictionaryModel(QObject *parent = nullptr) : ArrayController({}, parent) {}

    const QStringList &booleanKeys() const { return m_booleanKeys; }
    void setBooleanKeys(const QStringList &keys);

    const QStringList &titles() const { return m_titles; }
    void setTitles(const QStringList &titles);

    bool isBoolean(int column) const { return m_booleanKeys.contains(keys()[column]); }

    /// A dictionary with an empty value for each key.
    QVariantMap emptyObject() const;

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant shownData(const QModelIndex &index, int role) const;

    QStringList m_booleanKeys;
    QStringList m_titles;
};

} // namespace windowing
