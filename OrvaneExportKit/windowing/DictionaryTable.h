#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

class QPushButton;
class QTableView;

namespace windowing {

class DictionaryModel;

/// A list of dictionaries that the user edits: a table with a row for each of them and a column for each of the chosen
/// keys, and buttons that add, remove and move rows.
///
///     windowing::DictionaryTable styles;
///     styles.setKeys({u"identifier"_s, u"tag"_s});
///     styles.setColumnTitles(u"Style\nTag"_s);
///     new windowing::Binding(&styles, u"content"_s, controller, u"settings.paragraphStyles"_s);
///
/// The arrow keys go from cell to cell, F2 or any letter edits the cell, the space bar changes a check box, the delete
/// key removes the row, and Tab leaves the table. A new row goes below the current one; the editor of its first text
/// opens at once. Entries of a dictionary that no column shows stay as they are. The table's accessible name is that of
/// this widget.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT DictionaryTable : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList keys READ keys WRITE setKeys DESIGNABLE true)
    Q_PROPERTY(QStringList booleanKeys READ booleanKeys WRITE setBooleanKeys DESIGNABLE true)
    Q_PROPERTY(QString columnTitles READ columnTitles WRITE setColumnTitles DESIGNABLE true)
    Q_PROPERTY(QVariantList content READ content WRITE setContent NOTIFY contentChanged)

public:
    /// A table without columns and rows.
    explicit DictionaryTable(QWidget *parent = nullptr);

    /// The keys that the columns show, from left to right.
    QStringList keys() const;
    void setKeys(const QStringList &keys);

    /// Those of the keys whose values are booleans, which show as check boxes. All others are texts.
    QStringList booleanKeys() const;
    void setBooleanKeys(const QStringList &keys);

    /// What stands above the columns: a line for each of them. (It is one text because an interface file has
    /// translations for texts, but none for lists of them.)
    QString columnTitles() const;
    void setColumnTitles(const QString &titles);

    /// The dictionaries, each a `QVariantMap`.
    QVariantList content() const;

    /// Replaces them. The row that is current stays current where there still is one.
    void setContent(const QVariantList &content);

Q_SIGNALS:
    void contentChanged(); ///< by the user or by `setContent`

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setTexts();
    void fitColumns();
    void updateButtons();
    int currentRow() const;
    void addRow();
    void removeRow();
    void moveRow(int distance);

    DictionaryModel *m_model;
    QTableView *m_table;
    QPushButton *m_addButton;
    QPushButton *m_removeButton;
    QPushButton *m_upButton;
    QPushButton *m_downButton;
};

} // namespace windowing
