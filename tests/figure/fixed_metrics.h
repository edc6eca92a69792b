// Letters that are all equally wide: what a layout comes to can be reckoned.
#pragma once
#include "platform/page.h"
#include "platform/text.h"

class FixedMetrics : public FontMetrics {
public:
    double WidthOf(const std::string& text, const Lettering& letters) const override {
        return static_cast<double>(Length(text)) * letters.size / 2;
    }
};
