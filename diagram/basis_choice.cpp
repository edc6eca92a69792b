#include "diagram/basis_choice.h"

#include "diagram/cluster_tree.h"
#include "diagram/data/basis.h"
#include "diagram/open_diagram.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

void FollowBasis() {
    if (!DiagramOpen) return;
    ShowBasisInMenu();
    RedrawDiagram();
    ClusterAgain();
}

void ChooseBasisItem(int option) {
    OptionButton& basis = frmMain.BasisOptions[option];
    if (!basis.Value()) {
        basis.SetValue(true);  // its click draws everything
        return;
    }
    RedrawDiagram();
    if (frmDiagram.ClusterTree.Visible()) DrawClusterTree();
    AlarmArmed = true;
}
