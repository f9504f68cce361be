#pragma once

#include "ManuscriptReader.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QTimer>

#include <vector>

namespace host {

/// A manuscript as a table, a document a row, with the changes that have not been saved.
///
/// Only changed texts are held in memory. The words of the others are counted little by little while the application
/// has nothing else to do.
class ManuscriptModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, StatusColumn, LabelColumn, WordsColumn, columns };

    explicit ManuscriptModel(QObject *parent = nullptr);

    /// Shows the manuscript of a folder in place of the one before. Throws `HostError`, and changes nothing, when it
    /// can't be opened.
    void open(const QString &folder);

    const QString &folder() const { return m_folder; }
    const Manuscript &manuscript() const { return m_manuscript; }
    const ManuscriptDocument &document(int row) const;

    /// Changes a document that is a text file, until it is saved. Lines end as they do in the file, whatever ends them
    /// in `text`. The text of the file is no change.
    void setText(int row, const QString &text);

    bool isModified() const;

    /// Writes the changed documents to their files. Throws `HostError` at the first that can't be written; it and those
    /// behind it stay unsaved.
    void save();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void modifiedChanged();

private:
    QString displayText(const QModelIndex &index) const;
    QString wordsText(int row) const;
    void showChange(int row);
    void countWords();

    QString m_folder;
    Manuscript m_manuscript;
    std::vector<qsizetype> m_wordCounts; ///< of the documents that have been counted, from the first on
    QTimer m_countingTimer;
};

} // namespace host
