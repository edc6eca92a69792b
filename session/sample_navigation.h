#pragma once

// Brings up the sample whose name Combo2 shows; of several with that name the last. The old-sample question is asked again at the
// next counting key, and the taxa curve begins anew.
void BringUpChosenSample();
