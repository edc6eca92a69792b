#include "drive/values.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "drive/script.h"
#include "platform/text.h"

namespace drive {

namespace {

bool IsAny(Kind) {
    return true;
}
bool IsBox(Kind kind) {
    return kind == Kind::TextBox || kind == Kind::ComboBox;
}
bool IsList(Kind kind) {
    return kind == Kind::ComboBox;
}
bool IsTabs(Kind kind) {
    return kind == Kind::TabControl;
}
bool IsMenu(Kind kind) {
    return kind == Kind::MenuItem;
}
bool IsOption(Kind kind) {
    return kind == Kind::OptionButton;
}
bool IsRange(Kind kind) {
    return kind == Kind::Slider || kind == Kind::ScrollBar || kind == Kind::ProgressBar;
}
bool IsCheckBox(Kind kind) {
    return kind == Kind::CheckBox;
}
bool HasCaption(Kind kind) {
    return kind == Kind::Label || kind == Kind::Button || kind == Kind::Frame || IsOption(kind) || IsCheckBox(kind) || IsMenu(kind);
}

struct PlainRow {
    const char* name;
    bool (*has)(Kind);
    std::string (*text)(const Properties&);
};

constexpr PlainRow kPlain[] = {
    {"Text", IsBox, [](const Properties& now) { return now.text; }},
    {"Caption", HasCaption, [](const Properties& now) { return now.text; }},
    {"Value", IsOption, [](const Properties& now) { return ValueText(now.selected); }},
    {"Value", IsCheckBox, [](const Properties& now) { return ValueText(now.ticked); }},
    {"Value", IsRange, [](const Properties& now) { return ValueText(now.value); }},
    {"Checked", IsMenu, [](const Properties& now) { return ValueText(now.checked); }},
    {"Enabled", IsAny, [](const Properties& now) { return ValueText(now.enabled); }},
    {"Visible", IsAny, [](const Properties& now) { return ValueText(now.visible); }},
    {"Bold", IsAny, [](const Properties& now) { return ValueText(now.bold); }},
    {"Italic", IsAny, [](const Properties& now) { return ValueText(now.italic); }},
    {"Underline", IsAny, [](const Properties& now) { return ValueText(now.underline); }},
    {"BackColor", IsAny, [](const Properties& now) { return ValueText(now.back); }},
    {"ForeColor", IsAny, [](const Properties& now) { return ValueText(now.fore); }},
    {"Left", IsAny, [](const Properties& now) { return ValueText(now.box.left); }},
    {"Top", IsAny, [](const Properties& now) { return ValueText(now.box.top); }},
    {"Width", IsAny, [](const Properties& now) { return ValueText(now.box.width); }},
    {"Height", IsAny, [](const Properties& now) { return ValueText(now.box.height); }},
    {"Max", IsRange, [](const Properties& now) { return ValueText(now.maximum); }},
    {"Min", IsRange, [](const Properties& now) { return ValueText(now.minimum); }},
    {"Tab", IsTabs, [](const Properties& now) { return ValueText(now.tab); }},
    {"SelStart", IsBox, [](const Properties& now) { return ValueText(now.caret); }},
    {"ToolTip", IsAny, [](const Properties& now) { return now.tool_tip; }},
    {"ListCount", IsList, [](const Properties& now) { return ValueText(now.items.size()); }},
};

struct IndexedRow {
    const char* name;
    bool (*has)(Kind);
};

constexpr IndexedRow kIndexed[] = {{"List", IsList}, {"TabCaption", IsTabs}};

struct WindowRow {
    const char* name;
    std::string (*text)(const Window&);
};

constexpr WindowRow kOfWindow[] = {
    {"Visible", [](const Window& window) { return ValueText(window.Visible()); }},
    {"Enabled", [](const Window& window) { return ValueText(window.Enabled()); }},
    {"Title", [](const Window& window) { return window.Title(); }},
    {"Left", [](const Window& window) { return ValueText(window.Left()); }},
    {"Top", [](const Window& window) { return ValueText(window.Top()); }},
    {"Width", [](const Window& window) { return ValueText(window.Width()); }},
    {"Height", [](const Window& window) { return ValueText(window.Height()); }},
    {"BackColor", [](const Window& window) { return ValueText(window.BackColor()); }},
};

std::string ItemText(const std::vector<std::string>& items, const std::string& property, std::optional<int> index) {
    if (!index) throw ScriptFault(property + " takes an index: " + property + "(0)");
    if (*index < 0 || *index >= static_cast<int>(items.size()))
        throw ScriptFault("the index of " + property + " is out of bounds: it has " + std::to_string(items.size()) + " items, from 0");
    return items[*index];
}

}  // namespace

std::string ValueText(bool value) {
    return value ? "True" : "False";
}

std::string ValueText(float value) {
    return std::isfinite(value) ? FloatText(value) : std::to_string(value);
}

std::string ValueText(double value) {
    return std::isfinite(value) ? NumberText(value) : std::to_string(value);
}

std::string ValueText(Colour value) {
    return std::to_string(value.red) + "," + std::to_string(value.green) + "," + std::to_string(value.blue);
}

const char* MainProperty(Kind kind) {
    switch (kind) {
        case Kind::TextBox:
        case Kind::ComboBox:
            return "Text";
        case Kind::Label:
        case Kind::Button:
        case Kind::Frame:
        case Kind::MenuItem:
            return "Caption";
        case Kind::OptionButton:
        case Kind::CheckBox:
        case Kind::Slider:
        case Kind::ScrollBar:
        case Kind::ProgressBar:
            return "Value";
        case Kind::TabControl:
            return "Tab";
        default:
            return nullptr;
    }
}

std::optional<std::string> PropertyText(const Control& control, const std::string& property, std::optional<int> index) {
    for (const IndexedRow& row : kIndexed)
        if (property == row.name && row.has(control.kind())) return ItemText(control.State().items, property, index);
    for (const PlainRow& row : kPlain) {
        if (property != row.name || !row.has(control.kind())) continue;
        if (index) throw ScriptFault(property + " takes no index");
        return row.text(control.State());
    }
    return std::nullopt;
}

std::optional<std::string> PropertyText(const Window& window, const std::string& property) {
    const auto row =
        std::find_if(std::begin(kOfWindow), std::end(kOfWindow), [&](const WindowRow& known) { return property == known.name; });
    if (row == std::end(kOfWindow)) return std::nullopt;
    return row->text(window);
}

}  // namespace drive
