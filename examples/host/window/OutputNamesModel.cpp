#include "OutputNamesModel.h"

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

QVariant iconFor(OutputNamesModel::Finding finding)
{
    const QStyle &style = *QApplication::style();
    switch (finding) {
    case OutputNamesModel::Finding::Existing:
        return style.standardIcon(QStyle::SP_MessageBoxInformation);
    case OutputNamesModel::Finding::Refused:
        return style.standardIcon(QStyle::SP_MessageBoxWarning);
    case OutputNamesModel::Finding::Repeated:
        return style.standardIcon(QStyle::SP_MessageBoxCritical);
    case OutputNamesModel::Finding::Nothing:
        break;
    }
    return {};
}

} // namespace

void OutputNamesModel::setPaths(const QStringList &paths)
{
    std::vector<Name> names;
    names.reserve(static_cast<std::size_t>(paths.size()));
    for (const QString &path : paths) {
        names.push_back({platform::lastPathComponent(path)});
    }
    const auto mark = [&names](const QList<platform::PathFinding> &findings, Finding finding) {
        for (const platform::PathFinding &found : findings) {
            Name &name = names[static_cast<std::size_t>(found.index)];
            name.finding = finding;
            name.note = found.reason;
        }
    };
    mark(platform::existingPaths(paths), Finding::Existing);
    mark(platform::refusedNames(paths), Finding::Refused);
    mark(platform::repeatedPaths(paths), Finding::Repeated);
    beginResetModel();
    m_names = std::move(names);
    endResetModel();
}

int OutputNamesModel::count(Finding finding) const
{
    return static_cast<int>(
        std::count_if(m_names.begin(), m_names.end(), [finding](const Name &name) { return name.finding == finding; }));
}

int OutputNamesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_names.size());
}

int OutputNamesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant OutputNamesModel::data(const QModelIndex &index, int role) const
{
    const Name &name = m_names[static_cast<std::size_t>(index.row())];
    const QString &text = index.column() == NameColumn ? name.text : name.note;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text;
    case Qt::DecorationRole:
        return index.column() == NameColumn ? iconFor(name.finding) : QVariant();
    default:
        return {};
    }
}

QVariant OutputNamesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || role != Qt::DisplayRole) {
        return {};
    }
    return section == NameColumn ? tr("File") : tr("Note");
}

} // namespace host
