#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

namespace host {

/// What the window shows before a manuscript is open: how to open one, and those that were open last.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomePage(const QStringList &recentManuscripts, QWidget *parent = nullptr);

Q_SIGNALS:
    void openRequested();
    void manuscriptRequested(const QString &folder);

private:
    void addManuscript(const QString &folder, QVBoxLayout &layout);
};

} // namespace host
