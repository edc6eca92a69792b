// A new sheet: from nothing, or from a template that has been opened.
#pragma once

void NewSheet();  // mnuNew: asks every time
void LoadSiteNameWindow();
void StoreFirstSampleName();  // its Text1 has changed
void AcceptFirstSample();     // its OK: the template becomes a sheet with one sample
