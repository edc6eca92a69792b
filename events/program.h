// The way into the program for every platform: call StartProgram once, when the services are in place, inside an event. A platform that
// may be ended against its user's will has a Rescue before that.
#pragma once
#include "files/rescue.h"

void StartProgram();  // joins the events of all windows and brings up the first one
