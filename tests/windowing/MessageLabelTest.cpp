#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <gtest/gtest.h>

#include <QtGui/QImage>

namespace {

using namespace Qt::Literals::StringLiterals;
using windowing::MessageLabel;

/// What a label of this size shows: black on white, nothing around it.
QImage rendered(MessageLabel &label, const QSize &size)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    label.setPalette(palette);
    label.resize(size);
    QImage image(size, QImage::Format_RGB32);
    label.render(&image);
    return image;
}

QImage rendered(const QString &text, const QSize &size)
{
    MessageLabel label;
    label.setText(text);
    return rendered(label, size);
}

/// Whether anything is drawn in a part of an image.
bool hasInk(const QImage &image, const QRect &part)
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                return true;
            }
        }
    }
    return false;
}

const QString longWord = u"Abcdefghijklmnopqrstuvwxyz"_s.repeated(8);

TEST(MessageLabel, LeavesOutTheMiddleOfALineThatIsTooLong)
{
    const QSize size(200, 30);
    const QString elided = QFontMetrics(MessageLabel().font()).elidedText(longWord, Qt::ElideMiddle, size.width());
    EXPECT_TRUE(elided.contains(u'…'));
    EXPECT_EQ(rendered(longWord, size), rendered(elided, size));
    EXPECT_NE(rendered(longWord, size), rendered(longWord.left(elided.size()), size));
}

TEST(MessageLabel, NeverAsksForTheWidthOfItsText)
{
    MessageLabel label;
    label.setText(u"short"_s);
    const QSize minimum = label.minimumSizeHint();
    label.setText(longWord);
    EXPECT_EQ(label.minimumSizeHint(), minimum);
    label.setWordWrap(true);
    EXPECT_EQ(label.minimumSizeHint(), minimum);
}

TEST(MessageLabel, BreaksAWordThatIsWiderThanTheLabel)
{
    MessageLabel label;
    label.setWordWrap(true);
    label.setText(longWord);
    const int lineHeight = label.heightForWidth(QFontMetrics(label.font()).horizontalAdvance(longWord) + 10);
    EXPECT_GE(label.heightForWidth(200), 3 * lineHeight);

    const QImage image = rendered(label, {200, label.heightForWidth(200)});
    EXPECT_TRUE(hasInk(image, {0, 0, 200, lineHeight}));
    EXPECT_TRUE(hasInk(image, {0, 2 * lineHeight, 200, lineHeight}));
}

TEST(MessageLabel, ObeysLineBreaksInItsText)
{
    MessageLabel label;
    label.setWordWrap(true);
    label.setText(u"one"_s);
    const int lineHeight = label.heightForWidth(200);
    label.setText(u"one\ntwo"_s);
    EXPECT_EQ(label.heightForWidth(200), 2 * lineHeight);
}

TEST(MessageLabel, DrawsInTheColourOfItsPalette)
{
    MessageLabel label;
    label.setWordWrap(true);
    label.setText(u"word"_s);
    const QSize size(100, 30);
    EXPECT_TRUE(hasInk(rendered(label, size), {0, 0, 100, 30}));

    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    label.setPalette(palette);
    QImage image(size, QImage::Format_RGB32);
    label.render(&image);
    EXPECT_FALSE(hasInk(image, {0, 0, 100, 30}));
}

} // namespace
