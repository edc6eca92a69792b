#include "diagram/data/basis.h"

#include "windows/diagram_window.h"
#include "windows/main_window.h"

BasisWeights WeightsOfBasis() {
    BasisWeights weights{};
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (frmMain.Option1[1].Value())
            weights[slot] = TaxonTable[slot][2].Number();
        else if (frmMain.Option1[2].Value())
            weights[slot] = TaxonTable[slot][3].Number();
        else
            weights[slot] = 1;
    }
    return weights;
}

void ShowBasisInMenu() {
    frmDiagram.mnuAll.SetChecked(frmMain.Option1[0].Value());
    frmDiagram.mnuSub1.SetChecked(frmMain.Option1[1].Value());
    frmDiagram.mnuSub2.SetChecked(frmMain.Option1[2].Value());
}
