// The way into the program for every platform: call Start once, when the services are in place, inside an event.
#pragma once

void StartProgram();  // joins the events of all windows and brings up the first one
