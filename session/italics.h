#pragma once

// Genera in italics, families ("...ae", "...AE") and empty slots upright, where mnuItalic is checked; a list of 135 genera is upright.
void ApplyItalics();
void ToggleItalics();  // mnuItalic was clicked
