// The script itself is wrong: what() says in one sentence how. The run stops with status 2.
#pragma once
#include <stdexcept>
#include <string>

namespace drive {

class ScriptFault : public std::runtime_error {
public:
    explicit ScriptFault(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace drive
