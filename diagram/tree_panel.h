// The panel at the right of the diagram that shows the cluster tree.
#pragma once

void ToggleTree();    // nmuConiss: opens the panel and clusters the samples, or closes it
void ClusterAgain();  // computes and draws an open tree anew; nothing if it is closed
