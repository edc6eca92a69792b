#include "diagram/tree_panel.h"

#include "diagram/cluster_tree.h"
#include "diagram/data/coniss.h"
#include "diagram/layout.h"
#include "platform/services.h"
#include "windows/diagram_window.h"

void ToggleTree() {
    const bool open = !frmDiagram.nmuConiss.Checked();
    frmDiagram.nmuConiss.SetChecked(open);
    frmDiagram.ClusterTree.SetVisible(open);
    LayOutDiagram();
    ClusterAgain();
    frmDiagram.ConissDrawn = open;
    MousePointer = kPointerDefault;
}

void ClusterAgain() {
    if (!frmDiagram.ClusterTree.Visible()) return;
    ComputeConiss();
    DrawClusterTree();
}
