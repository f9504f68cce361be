#include "ManuscriptModel.h"

#include "AtomicFile.h"
#include "DocumentText.h"
#include "HostError.h"
#include "WordCount.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QLocale>
#include <QtGui/QFont>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// How long the words are counted before the window gets its turn again.
constexpr qint64 millisecondsOfCounting = 10;

constexpr qsizetype unreadable = -1;

qsizetype wordsOf(const ManuscriptDocument &document)
{
    try {
        return wordCount(document.text().string());
    } catch (const HostError &) {
        return unreadable; // the editor says why
    }
}

/// The text in a file; a null string when it can't be read any more.
QString savedText(const QString &path)
{
    try {
        return documentText(path).string();
    } catch (const HostError &) {
        return {};
    }
}

} // namespace

ManuscriptModel::ManuscriptModel(QObject *parent) : QAbstractTableModel(parent)
{
    connect(&m_countingTimer, &QTimer::timeout, this, &ManuscriptModel::countWords);
}

void ManuscriptModel::open(const QString &folder)
{
    Manuscript manuscript = openManuscript(folder);
    beginResetModel();
    m_folder = folder;
    m_manuscript = std::move(manuscript);
    m_wordCounts.clear();
    endResetModel();
    m_countingTimer.start(0);
    Q_EMIT modifiedChanged();
}

const ManuscriptDocument &ManuscriptModel::document(int row) const
{
    return m_manuscript.documents[static_cast<std::size_t>(row)];
}

void ManuscriptModel::setText(int row, const QString &text)
{
    const auto index = static_cast<std::size_t>(row);
    ManuscriptDocument &document = m_manuscript.documents[index];
    const QString saved = savedText(document.path());
    QString changed = text;
    if (saved.contains("\r\n"_L1)) {
        changed.replace(u'\n', "\r\n"_L1);
    }
    if (changed == saved) {
        document.releaseText();
    } else {
        document.setText(platform::AttributedString(changed));
    }
    if (index < m_wordCounts.size()) {
        m_wordCounts[index] = wordCount(changed);
    }
    showChange(row);
}

bool ManuscriptModel::isModified() const
{
    return std::any_of(m_manuscript.documents.begin(), m_manuscript.documents.end(),
                       [](const ManuscriptDocument &document) { return document.holdsText(); });
}

void ManuscriptModel::save()
{
    for (int row = 0; row < rowCount(); ++row) {
        ManuscriptDocument &document = m_manuscript.documents[static_cast<std::size_t>(row)];
        if (document.holdsText()) {
            writeFile(document.path(), document.text().string().toUtf8());
            document.releaseText();
            showChange(row);
        }
    }
}

int ManuscriptModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_manuscript.documents.size());
}

int ManuscriptModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ManuscriptModel::data(const QModelIndex &index, int role) const
{
    const bool isModified = document(index.row()).holdsText();
    switch (role) {
    case Qt::DisplayRole:
        return displayText(index);
    case Qt::TextAlignmentRole:
        return QVariant(index.column() == WordsColumn ? Qt::AlignTrailing | Qt::AlignVCenter
                                                      : Qt::AlignLeading | Qt::AlignVCenter);
    case Qt::FontRole: {
        QFont font;
        font.setBold(isModified);
        return font;
    }
    case Qt::AccessibleTextRole:
        return isModified && index.column() == NameColumn ? tr("%1, changed").arg(displayText(index))
                                                          : displayText(index);
    case Qt::ToolTipRole:
        return isModified ? tr("Changed and not saved yet") : displayText(index);
    default:
        return {};
    }
}

QVariant ManuscriptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(section == WordsColumn ? Qt::AlignTrailing | Qt::AlignVCenter
                                               : Qt::AlignLeading | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Document");
    case StatusColumn:
        return tr("Status");
    case LabelColumn:
        return tr("Label");
    default:
        return tr("Words");
    }
}

QString ManuscriptModel::displayText(const QModelIndex &index) const
{
    const ManuscriptDocument &shown = document(index.row());
    switch (index.column()) {
    case NameColumn:
        return shown.name();
    case StatusColumn:
        return shown.status();
    case LabelColumn:
        return shown.label();
    default:
        return wordsText(index.row());
    }
}

QString ManuscriptModel::wordsText(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    if (index >= m_wordCounts.size()) {
        return u"…"_s;
    }
    return m_wordCounts[index] == unreadable ? u"–"_s : QLocale().toString(m_wordCounts[index]);
}

void ManuscriptModel::showChange(int row)
{
    Q_EMIT dataChanged(index(row, 0), index(row, columns - 1));
    Q_EMIT modifiedChanged();
}

void ManuscriptModel::countWords()
{
    const auto first = static_cast<int>(m_wordCounts.size());
    QElapsedTimer time;
    time.start();
    while (m_wordCounts.size() < m_manuscript.documents.size() && time.elapsed() < millisecondsOfCounting) {
        m_wordCounts.push_back(wordsOf(m_manuscript.documents[m_wordCounts.size()]));
    }
    const auto end = static_cast<int>(m_wordCounts.size());
    if (first < end) {
        Q_EMIT dataChanged(index(first, WordsColumn), index(end - 1, WordsColumn));
    }
    if (end == rowCount()) {
        m_countingTimer.stop();
    }
}

} // namespace host
