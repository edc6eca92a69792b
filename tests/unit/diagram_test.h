// A sheet of a few samples with its diagram, driven as a user drives it.
#pragma once
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/picture_box.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

// Notes each step of the main window's bar while it lives: "3 of 135".
class BarWatch : private ControlView {
public:
    BarWatch() { frmMain.ProgressBar1.BindView(this); }
    ~BarWatch() override { frmMain.ProgressBar1.BindView(nullptr); }
    Texts seen;

private:
    void Changed(Property) override {
        const ProgressBar& bar = frmMain.ProgressBar1;
        if (bar.Visible() && bar.Value() > 0) seen.push_back(std::to_string(bar.Value()) + " of " + std::to_string(bar.Max()));
    }
};

class DiagramTest : public SheetTest {
protected:
    DiagramTest();

    // Samples of these names; counts[sample - 1][slot - 1], slots beyond are empty.
    static void Sheet(const Texts& names, const std::vector<std::vector<int>>& counts);
    static void Open(MenuItem& style);                                          // an item of the main window
    static int Drawn(const PictureBox& picture, const std::string& operation);  // how often, as in "line 5 10 45 10 0,128,0"
};

// Of the depths 10, 20 and 40: three taxa, of which the first two make up the basis "Subtotal-1" and the second "Subtotal-2".
class ThreeDepthsTest : public DiagramTest {
protected:
    ThreeDepthsTest();
};
