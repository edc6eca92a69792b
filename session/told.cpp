#include "session/told.h"

Event<> SaveAsked;
Event<> HundredReached;
Event<> CountsChanged;
Event<> TotalChanged;
Event<const std::string&> SaveBegins;
Event<> SheetSaved;
Event<> SaveFailed;
Event<> SheetCopied;
Event<bool> SheetGivenUp;
Event<> SheetCleared;
Event<> SheetReplaced;
Event<> SheetReset;
Event<> BasisChosen;
