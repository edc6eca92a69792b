// Paths of the program, in UTF-8 with `/` or `\` between the names, as the system has them.
#pragma once
#include <QString>
#include <string>

#include "platform/qt/look.h"

inline QString SystemPath(const std::string& path) {
    return ToQt(path).replace(u'\\', u'/');  // Qt takes `/` everywhere
}
