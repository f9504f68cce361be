#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

/// \file
/// Property lists of settings as one writes and reads them with the XML streams of Qt.

QByteArray writtenByStream(const QVariantMap &settings);
QVariant readByStream(const QByteArray &list);
