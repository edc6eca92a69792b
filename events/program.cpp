#include "events/program.h"

#include "diagram/diversity_curve.h"
#include "diagram/open_diagram.h"
#include "events/join.h"
#include "files/back_up.h"
#include "files/save_sheet.h"
#include "session/told.h"
#include "windows/next_window.h"

namespace {
void JoinCounting() {
    SaveAsked.Calls(SaveAsCounted);
    HundredReached.Calls(BackUpSheet);
    CountsChanged.Calls(RedrawDiagram);
    TotalChanged.Calls(FollowTotal);
    BasisChosen.Calls(FollowBasis);
}
}  // namespace

void StartProgram() {
    JoinCounting();
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
