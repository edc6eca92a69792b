// Joins the events of each window to their procedures: here a reader finds every way in.
#pragma once

void JoinMainEvents();
void JoinNextEvents();
void JoinInitialEvents();
void JoinSiteNameEvents();
void JoinKeyCodeEvents();
void JoinSubtotalEvents();
void JoinParaNameEvents();
void JoinAccessoryEvents();
void JoinDiagramEvents();
