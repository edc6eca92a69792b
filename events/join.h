// Joins the events of each window to their procedures: here a reader finds every way in.
#pragma once
#include "platform/controls.h"

void JoinMainEvents();
void JoinNextEvents();
void JoinInitialEvents();
void JoinSiteNameEvents();
void JoinKeyCodeEvents();
void JoinSubtotalEvents();
void JoinParaNameEvents();
void JoinAccessoryEvents();
void JoinDiagramEvents();

void JoinGuardedKeys(TextBox& box);  // its keys are noted for the guard against quotation marks
