// Message boxes and file dialogs look as the windows of the program do.
#include "platform/qt/style.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>

#include "platform/qt/look.h"
#include "unit_qt/on_screen_test.h"
#include "windows/next_window.h"

namespace {
class StyleTest : public OnScreenTest {
protected:
    // The pixels from above to below, without the edges, at so many pixels from the left.
    static QList<QColor> ColoursDown(QWidget& widget, int left) {
        const QImage image = widget.grab().toImage();
        QList<QColor> colours;
        for (int y = 4; y < image.height() - 4; ++y) {
            const QColor colour = image.pixelColor(left, y);
            if (!colours.contains(colour)) colours << colour;
        }
        return colours;
    }
};

TEST_F(StyleTest, AButtonOfAMessageBoxIsAsFlatAsOneOfAWindow) {
    QMessageBox box(QMessageBox::Warning, "Marlbrook", "Save?", QMessageBox::Yes | QMessageBox::No);
    box.show();
    QPushButton& no = *qobject_cast<QPushButton*>(box.button(QMessageBox::No));
    const QList<QColor> in_box = ColoursDown(no, 6);
    EXPECT_EQ(in_box, QList<QColor>{kButtonFace});
    EXPECT_EQ(in_box, ColoursDown(*Shown(frmNext.Command4).Widget(), 6));
    no.setDown(true);
    EXPECT_EQ(ColoursDown(no, 6), QList<QColor>{kAccent});
}

TEST_F(StyleTest, ABoxWithAListIsFlatToo) {
    QComboBox box;
    box.resize(200, 30);
    EXPECT_EQ(ColoursDown(box, 100), QList<QColor>{Qt::white});
}

TEST_F(StyleTest, AScrollBarIsFlatAndItsHandleStandsOut) {
    QScrollBar bar(Qt::Horizontal);
    bar.resize(200, 30);
    bar.setRange(0, 100);
    bar.setPageStep(100);  // the handle takes the left half
    EXPECT_EQ(ColoursDown(bar, 60), QList<QColor>{kBoxEdge});
    EXPECT_EQ(ColoursDown(bar, 140), QList<QColor>{ToQt(kFormColour)});
    bar.setEnabled(false);
    EXPECT_EQ(ColoursDown(bar, 60), QList<QColor>{kOutline});
}

TEST_F(StyleTest, AScrollBarWithNothingToScrollHasNoHandle) {
    QScrollBar bar(Qt::Vertical);
    bar.resize(30, 200);
    bar.setRange(0, 0);
    EXPECT_EQ(bar.grab().toImage().pixelColor(15, 100), ToQt(kFormColour));
}

TEST_F(StyleTest, SignsAreDrawnInTheColoursOfTheProgramAtEverySize) {
    const struct {
        QStyle::StandardPixmap which;
        QColor colour;
    } signs[] = {{QStyle::SP_MessageBoxInformation, kAccent},
                 {QStyle::SP_MessageBoxQuestion, kAccent},
                 {QStyle::SP_MessageBoxWarning, QColor(0xc9, 0x7a, 0x00)}};
    for (const auto& sign : signs)
        for (const int size : {16, 32, 64, 128}) {
            const QImage image = QApplication::style()->standardIcon(sign.which).pixmap(size).toImage();
            ASSERT_EQ(image.size(), QSize(size, size));
            EXPECT_EQ(image.pixelColor(size / 4, size * 3 / 4), sign.colour) << sign.which << " " << size;
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << sign.which << " " << size;
        }
}
}  // namespace
