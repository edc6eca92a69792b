// What a person or a program can compare line by line: the sheet in memory, and the main window as it stands.
#pragma once
#include <functional>
#include <ostream>
#include <string>

struct MainWindow;

namespace drive {

using ValueOfName = std::function<std::string(const std::string& name)>;  // on one line, as scripts show values

void DumpSheet(std::ostream& out, const ValueOfName& value_of);
void DumpWindow(std::ostream& out, const MainWindow& window, const ValueOfName& value_of);

}  // namespace drive
