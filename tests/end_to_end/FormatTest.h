#pragma once

#include <tests/end_to_end/HostTest.h>

namespace end_to_end {

/// Exports through a plug-in for a format with styles and pages.
class FormatTest : public HostTest
{
protected:
    explicit FormatTest(const QString &plugin) : m_plugin(plugin) {}

    HostResult exportWith(const QStringList &settings = {}) const;

    /// What one document with this text becomes.
    QByteArray exportOf(const QByteArray &text, const QStringList &settings = {}) const;

    /// What stands between `before` and `after`, from the first of them to the last, in what a text becomes.
    QByteArray contentOf(const QByteArray &text, const QByteArray &before, const QByteArray &after,
                         const QStringList &settings = {}) const;

    /// Exports a sample manuscript and compares the file of its document of this number with the stored one.
    void expectSample(const QString &manuscript, const QString &file, const QString &stored) const;

    /// Runs a program on a file of the destination, in the destination. Succeeds when it ends with 0 and says nothing
    /// that `complaint` matches.
    testing::AssertionResult passes(const QString &program, const QStringList &options, const QString &file,
                                    const QString &complaint) const;

private:
    QString m_plugin;
};

} // namespace end_to_end
