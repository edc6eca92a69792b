// frmParaName: a field of the Additional info gets another name, from the main window in Modify mode or from frmNext with the first
// sample. Names are kept without a colon; the main window shows each with one.
#pragma once

void RenameParamOfSheet(int p);       // Command7[p] of frmMain, p: 1..6
void RenameParamOfNextSample(int p);  // Command5[p] of frmNext: only that window shows the new name, the sheet takes it with the sample
void AcceptParamName();               // an empty name will do
void CancelParamName();               // or the frame
