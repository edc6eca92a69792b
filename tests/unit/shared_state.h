// What all windows and procedures share, as at the start of a process.
#pragma once

void WipeSharedState();
