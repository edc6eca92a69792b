#include "diagram/data/basis.h"

#include "windows/diagram_window.h"
#include "windows/main_window.h"

BasisWeights WeightsOfBasis() {
    BasisWeights weights{};
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (frmMain.Subtotal1Basis.Value())
            weights[slot] = TaxonTable[slot][kTaxonSubtotal1].Number();
        else if (frmMain.Subtotal2Basis.Value())
            weights[slot] = TaxonTable[slot][kTaxonSubtotal2].Number();
        else
            weights[slot] = 1;
    }
    return weights;
}

void ShowBasisInMenu() {
    frmDiagram.mnuAll.SetChecked(frmMain.AllTotalBasis.Value());
    frmDiagram.mnuSub1.SetChecked(frmMain.Subtotal1Basis.Value());
    frmDiagram.mnuSub2.SetChecked(frmMain.Subtotal2Basis.Value());
}
