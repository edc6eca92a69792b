#include "drive/dumps.h"
#include "drive/names.h"
#include "drive/script.h"
#include "drive/values.h"
#include "session/state/sheet_state.h"

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

void WriteCells(std::ostream& out) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        const Properties& name = ControlOf(Indexed("frmMain.Text1", slot)).State();
        const Properties& count = ControlOf(Indexed("frmMain.Text2", slot)).State();
        const std::string marks = Marks(name, count);
        if (name.text == kEmpty && count.text == "0" && marks.empty()) continue;
        out << Indexed("Text1", slot) << " = " << Quoted(name.text) << " " << Quoted(count.text) << marks << "\n";
    }
}

class Lines {
public:
    Lines(std::ostream& out, const ValueOfName& value_of) : out_(out), value_of_(value_of) {}
    void Write(const std::string& control) { out_ << control << " = " << value_of_("frmMain." + control) << "\n"; }
    void Write(const std::string& array, int first, int last) {
        for (int index = first; index <= last; ++index) Write(Indexed(array, index));
    }
    void WriteList(const std::string& combo) {
        Write(combo);
        const int count = static_cast<int>(ControlOf("frmMain." + combo).State().items.size());
        for (int item = 0; item < count; ++item) Write(Indexed(combo + ".List", item));
    }

private:
    std::ostream& out_;
    const ValueOfName& value_of_;
};

bool IsCommand(const Control& control) {
    return control.kind() == Kind::Button || (control.kind() == Kind::MenuItem && control.State().text != "-");
}

void WriteCommands(std::ostream& out) {
    for (const Control* control : WindowOf("frmMain").Controls()) {
        if (!IsCommand(*control)) continue;
        const bool is_checked = control->kind() == Kind::MenuItem && control->State().checked;
        out << (control->index < 0 ? control->name : Indexed(control->name, control->index)) << " = " << Quoted(control->State().text)
            << (control->Enabled() ? " enabled" : " disabled") << (is_checked ? " checked" : "") << "\n";
    }
}

}  // namespace

void DumpWindow(std::ostream& out, const ValueOfName& value_of) {
    Lines lines(out, value_of);
    lines.Write("Title");
    WriteCells(out);
    lines.Write("Text3", 0, 2);
    lines.Write("Text4");
    lines.Write("Text5", 1, kParams);
    lines.Write("Label10", 1, kParams);
    lines.Write("Label2", 0, 2);
    lines.Write("Label4");
    lines.Write("SSTab1");
    lines.WriteList("Combo1");
    lines.WriteList("Combo2");
    lines.Write("Option1", 0, 2);
    WriteCommands(out);
}

}  // namespace drive
