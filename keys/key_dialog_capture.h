// The boxes of frmKeyCode take keys: the one that goes down in a box is the box's own from then on. A box is emptied when it gets the
// focus, and one that is left empty gets back what it held.
#pragma once

// Text1[key]. What the key types stays as its definition; a key that has a name shows "[Esc]" once it is up.
void EnterDefinition(int key);
void CaptureDefinitionKey(int key, int code);
void CheckDefinition(int key);  // the text has changed: a quotation mark that key 51 gave is refused with a message
void NameDefinition(int key, int code);
void LeaveDefinition(int key);

// Text4[box]: Shift-1, Shift-2, Undo, Save. That of F1 gives its code and the eight that follow to the top rows of the three blocks.
void EnterFunctional(int box);
void CaptureFunctionalKey(int box, int code);
void NameFunctional(int box, int code);
void LeaveFunctional(int box);

// Text3[place]: typed by the user; a number outside 1..45 is refused with a message when the box is left.
void EnterKeyNumber(int place);
void LeaveKeyNumber(int place);
