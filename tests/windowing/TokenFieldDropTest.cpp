// What is dropped on a token field is stored, and nothing is lost on the way.

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>
#include <tests/support/TokenFields.h>

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using windowing::Binding;

namespace {

/// The fields, of which the one without the focus is bound.
class BoundTokenFields : public support::TokenFields
{
protected:
    BoundTokenFields() { m_otherField.setFocus(); }

    QVariant stored() const { return m_controller.settings()->objectForKey(u"fileName"_s); }

    static std::unique_ptr<QMimeData> text(const QString &text)
    {
        auto data = std::make_unique<QMimeData>();
        data->setText(text);
        return data;
    }

    /// What a drag of all that another field holds brings along.
    std::unique_ptr<QMimeData> dragged(const QStringList &value)
    {
        windowing::TokenField source;
        source.setDelegate(&m_delegate);
        source.setValue(value);
        source.findChild<QTextEdit *>()->selectAll();
        source.findChild<QTextEdit *>()->copy();
        const QMimeData *copied = QApplication::clipboard()->mimeData();
        auto data = std::make_unique<QMimeData>();
        for (const QString &format : copied->formats()) {
            data->setData(format, copied->data(format));
        }
        return data;
    }

    Qt::DropAction drop(const QMimeData &data, Qt::DropAction action = Qt::MoveAction)
    {
        return support::drop(*editor().viewport(), editor().viewport()->rect().center(), data, action);
    }

    support::PanelController m_controller;
    Binding m_binding{&m_field, u"value"_s, &m_controller, u"settings.fileName"_s};
};

TEST_F(BoundTokenFields, StoreTextThatIsDroppedWithoutTheFocus)
{
    EXPECT_EQ(drop(*text(u"dropped"_s)), Qt::MoveAction);
    EXPECT_FALSE(editor().hasFocus());
    EXPECT_EQ(stored(), QVariant(QVariantList{u"dropped"_s}));
}

TEST_F(BoundTokenFields, StoreATokenThatIsDroppedWithoutTheFocus)
{
    EXPECT_EQ(drop(*dragged({u"<2>"_s, u"-"_s})), Qt::MoveAction);
    EXPECT_EQ(stored(), QVariant(QVariantList{u"<2>"_s, u"-"_s}));
    EXPECT_EQ(m_field.displayText(), u"Name-"_s);
}

TEST_F(BoundTokenFields, MakeTokensOfDroppedTextAsTheyDoOfTypedText)
{
    drop(*text(u"<1> Name"_s));
    EXPECT_EQ(stored(), QVariant(QVariantList{u"<1>"_s, u" "_s, u"<2>"_s}));
}

TEST_F(BoundTokenFields, EndTheEditOnceOnADrop)
{
    const QSignalSpy finished(&m_field, &windowing::TokenField::editingFinished);
    drop(*text(u"dropped"_s));
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(BoundTokenFields, LeaveATokenWhereItWasWhenItCannotBeStored)
{
    m_field.setValue({u"<1>"_s});
    // Whoever shows the old value again when the edit has ended has refused the new one.
    QObject::connect(&m_field, &windowing::TokenField::editingFinished, &m_field,
                     [this] { m_field.setValue({u"<1>"_s}); });
    EXPECT_NE(drop(*dragged({u"<2>"_s})), Qt::MoveAction);
    EXPECT_EQ(m_field.value(), QStringList{u"<1>"_s});
}

TEST_F(BoundTokenFields, TakeTheTextOfADragWhoseTokensAreBroken)
{
    const auto data = text(u"Name"_s);
    data->setData(u"application/x-orvane-token-pieces"_s, "\x01\xff");
    EXPECT_EQ(drop(*data), Qt::MoveAction);
    EXPECT_EQ(stored(), QVariant(QVariantList{u"<2>"_s}));
}

TEST_F(BoundTokenFields, RefuseADragThatHoldsNothingForThem)
{
    QMimeData broken;
    broken.setData(u"application/x-orvane-token-pieces"_s, "\x01\xff");
    EXPECT_EQ(drop(broken), Qt::IgnoreAction);
    EXPECT_EQ(drop(*text(QString())), Qt::IgnoreAction);
    EXPECT_FALSE(stored().isValid());
}

TEST_F(BoundTokenFields, TakeNothingWhenTheyAreReadOnly)
{
    m_field.setReadOnly(true);
    EXPECT_EQ(drop(*dragged({u"<2>"_s})), Qt::IgnoreAction);
    EXPECT_FALSE(stored().isValid());
}

} // namespace
