// The colours in use, each on the ground it lies on, by the contrast ratio of WCAG 2: words 4.5 at least, those that rest 4, edges and
// signs 3.
#include <gtest/gtest.h>

#include <QPalette>
#include <algorithm>
#include <cmath>

#include "diagram/open_diagram.h"
#include "platform/qt/look.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "unit_qt/on_screen_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr double kOfWords = 4.5, kOfRestingWords = 4, kOfSigns = 3;

double Light(double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Light(colour.redF()) + 0.7152 * Light(colour.greenF()) + 0.0722 * Light(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor GroundBelow(const Control& control) {
    return ToQt(control.container ? control.container->BackColor() : control.window->BackColor());
}

bool IsWords(Kind kind) {
    return kind == Kind::Label || kind == Kind::OptionButton || kind == Kind::CheckBox || kind == Kind::Frame;
}

class ContrastTest : public OnScreenTest {
protected:
    // Every control of the window that is seen now.
    void CheckWindow(const Window& window, const std::string& state) {
        int seen = 0;
        for (const Control* control : window.Controls()) {
            ControlWidget* const shown = renderer_.WidgetOf(window)->Find(*control);
            if (!shown || !shown->Widget()->isVisible()) continue;
            ++seen;
            CheckControl(*control, window.name + " " + state + ": " + control->name + "(" + std::to_string(control->index) + ")");
        }
        EXPECT_GT(seen, 0) << window.name << " " << state;
    }

    void CheckPicture(const PictureBox& picture, const std::string& name) {
        int seen = 0;
        for (const DrawOperation& drawn : picture.Operations()) {
            if (drawn.shape == DrawOperation::Shape::Rectangle) continue;
            ++seen;
            const double least = drawn.shape == DrawOperation::Shape::Text ? kOfWords : kOfSigns;
            EXPECT_GE(Contrast(ToQt(drawn.rim), ToQt(picture.BackColor())), least) << name << " " << drawn.text;
        }
        EXPECT_GT(seen, 0) << name;
    }

    void BeginSheet() {
        Do([] { ClickControl(frmNext.Command4); });
        Do([] { ClickControl(frmNext.Command1); });
    }

private:
    void CheckControl(const Control& control, const std::string& name) {
        const Properties& state = control.State();
        const QColor fore = ToQt(state.fore), back = ToQt(state.back), below = GroundBelow(control);
        const QColor words = state.enabled ? fore : kRestingWords;
        const double least = state.enabled ? kOfWords : kOfRestingWords;
        if (control.kind() == Kind::TextBox || control.kind() == Kind::ComboBox) {
            EXPECT_GE(Contrast(fore, BoxGround(state)), kOfWords) << name;
            if (state.enabled) CheckEdge(BoxGround(state), below, name);
        } else if (control.kind() == Kind::Button) {
            const QColor face = state.back == kFormColour ? kButtonFace : back;
            EXPECT_GE(Contrast(words, state.enabled ? face : below), least) << name;
        } else if (control.kind() == Kind::TabControl) {
            EXPECT_GE(Contrast(fore, back.darker(kTabBehind)), kOfWords) << name;
        } else if (IsWords(control.kind())) {
            EXPECT_GE(Contrast(words, state.back == kFormColour ? below : back), least) << name;
        }
    }

    // On a dark ground the box itself stands out.
    static void CheckEdge(const QColor& box, const QColor& ground, const std::string& name) {
        EXPECT_GE(Contrast(kBoxEdge, box), kOfSigns) << name;
        EXPECT_GE(std::max(Contrast(kBoxEdge, ground), Contrast(box, ground)), kOfSigns) << name;
    }
};

TEST_F(ContrastTest, BlackOnWhiteIs21) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
}

TEST_F(ContrastTest, TheWayToTheFirstSampleCanBeRead) {
    CheckWindow(frmNext, "at the start");
    Do([] { frmNext.TellOnStartFace(StartNews::NoSoundDevice, "No sound device"); });
    CheckWindow(frmNext, "with a warning");
    Do([] { ClickControl(frmNext.Command4); });
    CheckWindow(frmNext, "first sample");
}

TEST_F(ContrastTest, TheMainWindowCanBeReadInEachOfItsColours) {
    BeginSheet();
    Do([] { PressKey(static_cast<int>(KeySettings[1][kKeyCode].Number())); });
    const Colour counted = frmMain.Text1[1].BackColor();
    ASSERT_NE(counted, kWhite);
    CheckWindow(frmMain, "with a counted cell");
    CheckPicture(frmMain.Picture2, "the curve of taxa");
    Do([] { ClickControl(frmMain.mnuUndo); });
    ASSERT_NE(frmMain.Text1[1].BackColor(), counted);
    CheckWindow(frmMain, "with an undone cell");
    Do([] { ClickControl(frmMain.Command3[0]); });
    ASSERT_NE(frmMain.SSTab1.BackColor(), kFormColour);
    CheckWindow(frmMain, "in Modify mode");
}

TEST_F(ContrastTest, EveryDialogCanBeRead) {
    BeginSheet();
    for (Window* window : AllWindows()) {
        if (window == &frmMain || window == &frmNext || window == &frmDiagram || window->covers_screen) continue;
        Do([&] { window->Show(); });
        CheckWindow(*window, "open");
        Do([&] { window->Unload(); });
    }
}

TEST_F(ContrastTest, WhatIsDrawnStandsOutFromItsPaper) {
    files_.bytes["/sheet.csv"] = Joined(DataSheet(3));
    services_.dialogs.answers.push_back("/sheet.csv");
    Do([] { ClickControl(frmNext.Command2); });
    Do(LaunchDiagram);
    Do([] { ClickControl(frmDiagram.mnuDotCurve); });
    Do([] { ClickControl(frmDiagram.nmuConiss); });
    Do([] { ClickControl(frmDiagram.Check1); });
    Do([] { ClickControl(frmDiagram.mnuHorizontal); });
    Do([] { MoveMouse(frmDiagram.Picture1, {MouseButton::None, 1, 15}); });
    CheckWindow(frmDiagram, "open");
    for (const PictureBox* picture : {&frmDiagram.Picture1, &frmDiagram.Picture2, &frmDiagram.Picture4})
        CheckPicture(*picture, picture->name);
}

TEST_F(ContrastTest, MenusListsAndTipsCanBeRead) {
    const struct {
        QPalette::ColorRole words, ground;
    } pairs[] = {{QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
                 {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
                 {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
                 {QPalette::PlaceholderText, QPalette::Base},      {QPalette::Link, QPalette::Base}};
    const QPalette palette = QApplication::palette();
    for (const auto& [words, ground] : pairs)
        EXPECT_GE(Contrast(palette.color(QPalette::Active, words), palette.color(QPalette::Active, ground)), kOfWords) << words;
    for (const auto& [words, ground] : {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
                                        std::pair(QPalette::ButtonText, QPalette::Button)})
        EXPECT_GE(Contrast(palette.color(QPalette::Disabled, words), palette.color(QPalette::Disabled, ground)), kOfRestingWords) << words;
}

TEST_F(ContrastTest, TheMarksOfTheLookStandOut) {
    const QColor form = ToQt(kFormColour);
    EXPECT_GE(Contrast(Qt::white, kAccent), kOfWords) << "the caption of a button that is pressed";
    EXPECT_GE(Contrast(kAccent, form), kOfSigns) << "the edge in focus";
    EXPECT_GE(Contrast(kRestingWords, form), kOfSigns) << "the rim of a mark that is off";
    EXPECT_GE(Contrast(kBoxEdge, form), kOfSigns) << "the handle of a scroll bar";
}
}  // namespace
