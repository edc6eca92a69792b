#include "events/program.h"

#include "diagram/diversity_curve.h"
#include "diagram/open_diagram.h"
#include "events/join.h"
#include "files/back_up.h"
#include "files/save_sheet.h"
#include "session/told.h"

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
    JoinMainEvents(frmMain);
    JoinNextEvents(frmNext);
    JoinInitialEvents(frmInitial);
    JoinSiteNameEvents(frmSiteName);
    JoinKeyCodeEvents(frmKeyCode);
    JoinSubtotalEvents(frmSubtotal);
    JoinParaNameEvents(frmParaName);
    JoinAboutEvents(frmAboutMB1, frmAboutDX1);
    JoinNoteEvents(frmNote);
    JoinPictureEvents(frmPicture);
    JoinDiagramEvents(frmDiagram);
    frmNext.Show();
}
