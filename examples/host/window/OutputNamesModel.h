#pragma once

#include "OutputPaths.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QStringList>

#include <vector>

namespace host {

/// The names of the files that an export would write, each with what is to be said about it.
class OutputNamesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, NoteColumn, columns };

    /// What is to be said about a name, the gravest last.
    enum class Finding { Nothing, Existing, Refused, Repeated };

    using QAbstractTableModel::QAbstractTableModel;

    void setPaths(const QStringList &paths);

    /// How many names there are with a finding.
    int count(Finding finding) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Name {
        QString text;
        Finding finding = Finding::Nothing;
        QString note = {};
    };

    std::vector<Name> m_names;
};

} // namespace host
