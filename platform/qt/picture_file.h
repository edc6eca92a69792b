// Pictures from files of any kind that the toolkit can read.
#pragma once
#include <QImage>
#include <string>

bool IsPicture(const std::string& bytes);      // by its head; what follows may yet be spoiled
QImage ReadPicture(const std::string& bytes);  // null if it cannot be read
