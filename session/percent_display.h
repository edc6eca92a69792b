// While the % button is held, the cells show percentages of the chosen total; at its release the counts come back.
#pragma once

void ShowPercentages();
void HidePercentages();
