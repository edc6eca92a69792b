// Where the captions of a tab control stand: above the uppermost control that lies in it.
#pragma once
#include <QRectF>

#include "platform/controls.h"

int TabBarTwips(const TabControl& tabs);
QRectF TabBarPlace(const TabControl& tabs, int tab, double width, double height);  // in a bar of this size
