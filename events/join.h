// Joins the events of each window to their procedures: here a reader finds every way in.
#pragma once
#include "platform/controls.h"
#include "windows/diagram_window.h"
#include "windows/information_windows.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

void JoinMainEvents(MainWindow& window);
void JoinNextEvents(NextWindow& window);
void JoinInitialEvents(InitialWindow& window);
void JoinSiteNameEvents(SiteNameWindow& window);
void JoinKeyCodeEvents(KeyCodeWindow& window);
void JoinSubtotalEvents(SubtotalWindow& window);
void JoinParaNameEvents(ParaNameWindow& window);
void JoinAboutEvents(AboutProgramWindow& program, AboutKeypadWindow& keypad);
void JoinNoteEvents(NoteWindow& window);
void JoinPictureEvents(PictureWindow& window);
void JoinDiagramEvents(DiagramWindow& window);

void JoinGuardedKeys(TextBox& box);                 // its keys are noted for the guard against quotation marks
void JoinDrop(Window& window, const Button& open);  // a sheet that is dropped onto it is opened, where the button could be pressed
