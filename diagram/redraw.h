#pragma once

// Brings an open diagram up to date after any change of data, basis, style or scale; the tree beside it stays as it is. Nothing if no
// diagram is open.
void RedrawDiagram();
