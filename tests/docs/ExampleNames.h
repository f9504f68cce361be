#pragma once

#include <OrvaneExportKit/OrvaneExportKit.h>
#include <OrvaneExportKit/controls/KZContentView.h>
#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/controls/KZPageView.h>
#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/run/KZOverwriteCheck.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/Panel.h>
#include <OrvaneExportKit/windowing/ProgressIndicator.h>
#include <OrvaneExportKit/windowing/Shadow.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

#include <memory>
#include <vector>

/// \file
/// What the examples in headers take for granted: the names that stand for something of the reader's.

using namespace Qt::Literals::StringLiterals;
using namespace KZArrayExportAdditions;
using namespace KZAttributedStringExportAdditions;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using namespace KZStringExportAdditions;
using namespace platform;
using namespace windowing;

/// The text alone, which examples show.
inline QString plain(const QString &text)
{
    return text;
}

inline QString plain(const AttributedString &text)
{
    return text.string();
}

/// A document with a name and nothing else.
class Chapter final : public ExportDocument
{
public:
    explicit Chapter(QString name) : m_name(std::move(name)) {}
    QString name() const override { return m_name; }
    QString status() const override { return {}; }
    QString label() const override { return {}; }

private:
    QString m_name;
};

inline const Chapter firstChapter(u"One"_s);
inline const Chapter secondChapter(u"Two"_s);
inline const QList<const ExportDocument *> documents{&firstChapter, &secondChapter};
inline const QByteArray archiveOfA = KeyedArchiver::archivedDataWithRootObject(u"A"_s);
inline const QByteArray archiveOfB = KeyedArchiver::archivedDataWithRootObject(u"B"_s);

inline AttributedString text;
inline const KeyedObject object;
inline RangeList ranges;
inline QStringList paths;
inline QVariantMap attributes;
inline QByteArray data;
inline std::vector<int> steps;
inline QRectF paper;

inline QObject *const controller = [] {
    static QObject object;
    object.setProperty("settings", QVariantMap{{u"margin"_s, QVariantMap{{u"top"_s, 72}}}});
    return &object;
}();
inline platform::OpenPanel *myPanel = nullptr;
inline KZExportSettings *settings = nullptr;
inline KZContentView *contentView = nullptr;
inline KZExportProgress *progressSheet = nullptr;
inline KZFontNameTextField *fontField = nullptr;
inline KZPageView *pageView = nullptr;
inline KZTokenFieldDelegate *delegate = nullptr;
inline windowing::Panel *panel = nullptr;
inline ProgressIndicator *bar = nullptr;
inline TokenField *tokenField = nullptr;
inline QPainter *painter = nullptr;
inline QTableView *tableView = nullptr;
inline QWidget *documentWindow = nullptr;
inline QWidget *field = nullptr;
inline QWidget *topMarginField = nullptr;

inline const QString path;
inline const QByteArray content;

inline void show(const QString & /*text*/)
{
}
inline void stop()
{
}
inline void warn(const QString & /*text*/)
{
}
inline void warn(const char * /*text*/)
{
}
inline void warn(const QString & /*path*/, const QString & /*reason*/)
{
}
inline void work(int /*step*/)
{
}
inline void write(const ExportDocument & /*document*/)
{
}

inline QString tr(const char *text)
{
    return QString::fromUtf8(text);
}

/// Classes that examples define members of.
struct Margins {
    float top = 72;

    void encodeWithCoder(platform::Coder &coder) const;
};

class Editor : public QWidget
{
public:
    void changeFont(windowing::FontPanel *sender);
};

class HtmlPanel : public QObject
{
};

class PercentTransformer : public KZEmptyStringTransformer
{
};
