#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

#include <plist/plist.h>

/// A property list in the values of libplist, with which other programs on Linux read and write them. Of the kinds of
/// value it takes those of settings: strings, whole and real numbers, booleans and dictionaries.
class LibplistTree
{
public:
    explicit LibplistTree(const QVariantMap &settings);
    LibplistTree(const QByteArray &list, platform::PropertyList::Format format);
    LibplistTree(const LibplistTree &) = delete;
    LibplistTree &operator=(const LibplistTree &) = delete;
    ~LibplistTree();

    QVariant value() const;
    QByteArray written(platform::PropertyList::Format format) const;

private:
    plist_t m_root = nullptr;
};
