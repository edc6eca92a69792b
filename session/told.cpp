#include "session/told.h"

Event<> SaveAsked;
Event<> HundredReached;
Event<> CountsChanged;
Event<> TotalChanged;
Event<> SheetSaved;
Event<> SheetReplaced;
Event<> SheetReset;
Event<> BasisChosen;
