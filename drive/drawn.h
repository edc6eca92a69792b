// Pictures as lines of text:
//
//     scale 0 9.5 500 21
//     rect 0 9.5 500 30.5 255,255,255
//     line 5 10 45 10 0,128,0
//     circle 45 10 1.5 0,128,0 255,255,255
//     text 3 4 7 "10"
//     name 12 80 italic "Pinus"
//     persist
//
// A curve stands as the lines that it is made of. Coordinates are in the scale of the moment, of a name in pixels. What stands before
// "persist" is the persistent image.
#pragma once
#include <string>
#include <vector>

#include "platform/picture_box.h"

namespace drive {

std::vector<std::string> PictureLines(const PictureBox& picture);

// How many operations of the picture are such as `line` says: numbers within 0.001, `*` for any number. ScriptFault if the line is
// of no known form.
int CountDrawn(const PictureBox& picture, const std::string& line);

int CountAll(const PictureBox& picture);
int CountKind(const PictureBox& picture, const std::string& kind);                               // "line", "rect" ...; ScriptFault
bool ScaleIs(const PictureBox& picture, const std::vector<std::string>& left_top_width_height);  // ScriptFault for what is no number
std::string ScaleText(const PictureBox& picture);                                                // the four numbers

}  // namespace drive
