#include "drive/dumps.h"
#include "drive/script.h"
#include "drive/values.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace drive {

namespace {

std::string Indexed(const std::string& array, int index) {
    return array + "(" + std::to_string(index) + ")";
}

// The marks that either cell of a slot bears; "" of a fresh one.
std::string Marks(const Properties& name, const Properties& count) {
    std::string marks;
    if (name.bold || count.bold) marks += " bold";
    if (name.italic || count.italic) marks += " italic";
    if (name.underline || count.underline) marks += " underline";
    const Colour back = name.back == kWhite ? count.back : name.back;
    if (back != kWhite) marks += " back=" + ValueText(back);
    return marks;
}

void WriteCells(std::ostream& out, const MainWindow& window) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        const Properties& name = window.TaxonNames[slot].State();
        const Properties& count = window.TaxonCounts[slot].State();
        const std::string marks = Marks(name, count);
        if (name.text == kEmpty && count.text == "0" && marks.empty()) continue;
        out << Indexed("Text1", slot) << " = " << Quoted(name.text) << " " << Quoted(count.text) << marks << "\n";
    }
}

class WindowLines {
public:
    WindowLines(std::ostream& out, const MainWindow& window, const ValueOfName& value_of)
        : out_(out), window_(window), value_of_(value_of) {}
    void Write(const std::string& control) { out_ << control << " = " << value_of_(window_.name + "." + control) << "\n"; }
    void Write(const std::string& array, int first, int last) {
        for (int index = first; index <= last; ++index) Write(Indexed(array, index));
    }
    void WriteList(const ComboBox& list) {
        Write(list.name);
        for (int item = 0; item < list.ListCount(); ++item) Write(Indexed(list.name + ".List", item));
    }

private:
    std::ostream& out_;
    const MainWindow& window_;
    const ValueOfName& value_of_;
};

bool IsCommand(const Control& control) {
    return control.kind() == Kind::Button || (control.kind() == Kind::MenuItem && control.State().text != "-");
}

void WriteCommands(std::ostream& out, const MainWindow& window) {
    for (const Control* control : window.Controls()) {
        if (!IsCommand(*control)) continue;
        const bool is_checked = control->kind() == Kind::MenuItem && control->State().checked;
        out << (control->index < 0 ? control->name : Indexed(control->name, control->index)) << " = " << Quoted(control->State().text)
            << (control->Enabled() ? " enabled" : " disabled") << (is_checked ? " checked" : "") << "\n";
    }
}

}  // namespace

void DumpWindow(std::ostream& out, const MainWindow& window, const ValueOfName& value_of) {
    WindowLines lines(out, window, value_of);
    lines.Write("Title");
    WriteCells(out, window);
    lines.Write("Text3", 0, 2);
    lines.Write("Text4");
    lines.Write("Text5", 1, kParams);
    lines.Write("Label10", 1, kParams);
    lines.Write("Label2", 0, 2);
    lines.Write("Label4");
    lines.Write("SSTab1");
    lines.WriteList(window.History);
    lines.WriteList(window.SampleList);
    lines.Write("Option1", 0, 2);
    WriteCommands(out, window);
}

}  // namespace drive
