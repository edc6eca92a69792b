#include "events/program.h"

#include "events/join.h"
#include "windows/next_window.h"

void StartProgram() {
    JoinMainEvents();
    JoinNextEvents();
    JoinInitialEvents();
    JoinSiteNameEvents();
    JoinKeyCodeEvents();
    JoinSubtotalEvents();
    JoinParaNameEvents();
    JoinAccessoryEvents();
    JoinDiagramEvents();
    frmNext.Show();
}
