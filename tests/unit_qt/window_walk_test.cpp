// A walk through all windows on the screens that users have: at 100, 125, 150 and 200 % every word is there, whole and inside its control.
#include <QMenuBar>

#include "diagram/open_diagram.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_file.h"
#include "unit_qt/on_screen_test.h"
#include "unit_qt/painted_words.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
QString WithoutBlanks(const std::string& text) {
    return ToQt(text).remove(u' ').remove(u'\r').remove(u'\n');
}

// What the control has to say on the screen; empty for a kind that says nothing.
QString Said(const Control& control) {
    QString said;
    switch (control.kind()) {
        case Kind::TabControl:
            for (const std::string& caption : control.State().items) said += WithoutBlanks(caption);
            return said;
        case Kind::Frame:
            return static_cast<const Frame&>(control).Border() ? WithoutBlanks(control.State().text) : said;
        case Kind::Label:
        case Kind::Button:
        case Kind::OptionButton:
        case Kind::CheckBox:
        case Kind::TextBox:
        case Kind::ComboBox:
            return WithoutBlanks(control.State().text);
        default:
            return said;
    }
}

bool HoldsOthers(const Control& control) {
    return control.kind() == Kind::Frame || control.kind() == Kind::TabControl;
}

#ifdef Q_OS_WIN  // a screen in memory has no letters there, so it is the one at hand
class DenseScreen {
protected:
    explicit DenseScreen(double) {}
};
#else
// 1920 by 1080 pixels of the toolkit, each of so many pixels of its own.
class DenseScreen : private Screens {
protected:
    explicit DenseScreen(double density) : Screens({{0, 0, static_cast<int>(1920 * density), static_cast<int>(1080 * density)}}) {}
};
#endif

// What users name, as long as they do.
struct Names {
    std::vector<std::string> taxa;
    std::string subtotals[2], param, sample;
};

const Names kGerman{{"Gänsefußgewächse", "Heidekrautgewächse", "Wegerichgewächse", "Spitzwegerich-Typ", "Scharfer Hahnenfuß", "Birke"},
                    {"Bäume und Sträucher", "Kräuter ohne Wasserpflanzen"},
                    "Magnetische Suszeptibilität",
                    "Großes Heiliges Meer 12,5"};
const Names kRussian{{"Колокольчиковые", "Можжевельник обыкновенный", "Подорожник ланцетный", "Сложноцветные", "Вересковые", "Берёза"},
                     {"Деревья и кустарники", "Травы без водных растений"},
                     "Магнитная восприимчивость",
                     "Озеро Неро 12,5"};
const Names kGreek{{"Αγριοτριανταφυλλιά", "Πλατύφυλλα δέντρα", "Χηνοποδιοειδή", "Κουκουναριά", "Ασφόδελος", "Ελιά"},
                   {"Δέντρα και θάμνοι", "Πόες χωρίς υδρόβια φυτά"},
                   "Μαγνητική επιδεκτικότητα",
                   "Λίμνη Βεγορίτιδα 12,5"};

Rows SheetWith(const Names& names) {
    Rows rows = DataSheet(2);
    for (std::size_t row = 0; row < kSlots; ++row) rows[kTaxonRow + row][3] = Quoted(names.taxa[row % names.taxa.size()]);
    for (std::size_t row = 0; row < kParams; ++row) rows[kParamRow + row][3] = Quoted(names.param);
    for (std::size_t cell : {4, 5}) rows[1][cell] = Quoted(names.sample + " " + std::to_string(cell));
    for (std::size_t subtotal : {0, 1}) rows[1][1 + subtotal] = rows[kSumRow + subtotal][3] = Quoted(names.subtotals[subtotal]);
    return rows;
}

class WindowWalkTest : public testing::WithParamInterface<double>, private DenseScreen, public OnScreenTest {
protected:
    WindowWalkTest() : DenseScreen(GetParam()), OnScreenTest(GetParam()) {}

    Words WordsOf(const Control& control) const {
        return Words(*Shown(control).Widget(), HoldsOthers(control) ? QWidget::RenderFlags() : QWidget::DrawChildren);
    }

    void CheckWords(const Window& window, const char* state) {
        int seen = 0;
        for (const Control* control : window.Controls()) {
            ControlWidget* const shown = renderer_.WidgetOf(window)->Find(*control);
            const QString said = Said(*control);
            if (!shown || !shown->Widget()->isVisible() || said.isEmpty()) continue;
            ++seen;
            const std::string name = window.name + " " + state + ": " + control->name + "(" + std::to_string(control->index) + ")";
            EXPECT_EQ(WordsOf(*control).Text().toStdString(), said.toStdString()) << name;
            EXPECT_TRUE(WordsOf(*control).IsInside()) << name;
        }
        EXPECT_GT(seen, 0) << window.name << " " << state;
        CheckMenuBar(window);
    }

    void CheckMenuBar(const Window& window) {
        const QMenuBar& bar = renderer_.WidgetOf(window)->Menus().Bar();
        if (!bar.isVisible()) return;
        for (QAction* menu : bar.actions())
            EXPECT_TRUE(!menu->isVisible() || bar.rect().contains(bar.actionGeometry(menu))) << menu->text().toStdString();
    }

    void CheckTabs(TabControl& tabs, const char* state) {
        for (int tab = 0; tab < static_cast<int>(tabs.TabCaptions().size()); ++tab) {
            Do([&] { PressTab(tabs, tab); });
            CheckWords(*tabs.window, state);
        }
    }

    void BeginSheet() {
        Do([] { ClickControl(frmNext.Command4); });
        Do([] { ClickControl(frmNext.Command1); });
    }

    void CheckDialogs() {
        for (Window* window : AllWindows()) {
            if (window->name == "frmMain" || window->name == "frmNext" || window->name == "frmDiagram" || window->name == "frmPicture")
                continue;
            Do([&] { window->Show(); });
            Control* const tabs = window->Find("SSTab1", -1);
            if (tabs)
                CheckTabs(static_cast<TabControl&>(*tabs), "open");
            else
                CheckWords(*window, "open");
            Do([&] { window->Unload(); });
        }
    }

    void CheckSheetWith(const Names& names) {
        const std::string path = "/sheets/names.csv";
        files_.bytes[path] = Joined(SheetWith(names));
        services_.dialogs.answers.push_back(path);
        Do([] { ClickControl(frmNext.Command2); });
        ASSERT_EQ(SampleCount, 2);
        CheckTabs(frmMain.SSTab1, "while it counts");
        Do([] { ClickControl(frmMain.Command5[1]); });
        CheckWords(frmNext, "next sample");
        Do([] { CloseWindow(frmNext); });
        Do([] { ClickControl(frmMain.Command3[0]); });
        CheckTabs(frmMain.SSTab1, "in Modify mode");
        Do([] { ClickControl(frmMain.Command3[1]); });
        CheckDialogs();
    }
};

TEST_P(WindowWalkTest, NoWordIsCutOnTheWayToTheFirstSample) {
    CheckWords(frmNext, "at the start");
    Do([] { ClickControl(frmNext.Command4); });
    CheckWords(frmNext, "first sample");
    Do([] { ClickControl(frmNext.Command1); });
    CheckTabs(frmMain.SSTab1, "while it counts");
    Do([] { ClickControl(frmMain.Command3[0]); });
    CheckTabs(frmMain.SSTab1, "in Modify mode");
}

TEST_P(WindowWalkTest, NoWordIsCutInTheDiagram) {
    BeginSheet();
    SampleCount = 2;
    Do(LaunchDiagram);
    Do([] { ClickControl(frmDiagram.Command1); });
    CheckWords(frmDiagram, "open");
    Do([] { ClickControl(frmDiagram.nmuConiss); });
    CheckWords(frmDiagram, "with its tree");
}

TEST_P(WindowWalkTest, NoWordIsCutInADialog) {
    BeginSheet();
    CheckDialogs();
}

TEST_P(WindowWalkTest, NoGermanNameIsCut) {
    CheckSheetWith(kGerman);
}

TEST_P(WindowWalkTest, NoRussianNameIsCut) {
    CheckSheetWith(kRussian);
}

TEST_P(WindowWalkTest, NoGreekNameIsCut) {
    CheckSheetWith(kGreek);
}

TEST_P(WindowWalkTest, AWordThatIsCutIsSeen) {
    BeginSheet();
    Do([] {
        frmMain.Command5[0].SetCaption(std::string(300, 'W'));
        frmMain.Frame1.SetCaption(std::string(300, 'W'));
    });
    EXPECT_NE(WordsOf(frmMain.Command5[0]).Text(), Said(frmMain.Command5[0])) << "dots stand for the rest";
    EXPECT_FALSE(WordsOf(frmMain.Frame1).IsInside());
}

INSTANTIATE_TEST_SUITE_P(Densities, WindowWalkTest, testing::Values(1.0, 1.25, 1.5, 2.0));
}  // namespace
