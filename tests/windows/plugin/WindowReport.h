#pragma once

#include <QtCore/QByteArray>

/// What the visible windows of the application show, as a JSON list without line breaks: each window with its name,
/// title, identifier and whether it is active, and its visible widgets with name, text, rows, whether they are enabled,
/// and their place on the screen.
QByteArray windowReport();
