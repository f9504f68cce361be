#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QAbstractTableModel>
#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

namespace windowing {

/// A list of dictionaries that item views show: a row for each dictionary, in the order in which they were added, and a
/// column for each of the chosen keys.
///
///     windowing::ArrayController files({u"filename"_s});
///     files.addObject({{u"filename"_s, u"Chapter 1.txt"_s}});
///     tableView->setModel(&files);
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT ArrayController : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `keys` are what the columns show.
    explicit ArrayController(const QStringList &keys, QObject *parent = nullptr);

    /// What the columns show.
    const QStringList &keys() const { return m_keys; }
    void setKeys(const QStringList &keys);

    /// The dictionaries, also with the entries that no column shows.
    const QList<QVariantMap> &content() const { return m_content; }

    /// Replaces all dictionaries.
    void setContent(const QList<QVariantMap> &content);

    /// Adds a dictionary at the end.
    void addObject(const QVariantMap &object);

    /// Each of these changes one dictionary of the content, at an index that is there; a dictionary is also inserted
    /// behind the last one. One that moves has the index `toRow` afterwards.
    void insertObject(int row, const QVariantMap &object);
    void setObject(int row, const QVariantMap &object);
    void removeObject(int row);
    void moveObject(int row, int toRow);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;

    /// The value of the row's dictionary under the column's key; as tool tip the same text, for where a column is too
    /// narrow for it.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QStringList m_keys;
    QList<QVariantMap> m_content;
};

} // namespace windowing
