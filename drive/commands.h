// The commands of the script language. A procedure of a command gets its words, the name of the command first, when their number is
// right; it raises ScriptFault if one of them is not.
#pragma once
#include "drive/script.h"
#include "drive/stage.h"

namespace drive {

// Runs one command to its end. ScriptFault also for a question of the program that found no answer.
void RunCommand(Stage& stage, const Command& command);

// Folders, files, clock, answers, start.
void SetFolder(Stage& stage, const Command& command);
void DeletePath(Stage& stage, const Command& command);
void WriteLines(Stage& stage, const Command& command);
void CopyFile(Stage& stage, const Command& command);
void LockFile(Stage& stage, const Command& command);
void UnlockFile(Stage& stage, const Command& command);
void LimitFile(Stage& stage, const Command& command);
void SetClock(Stage& stage, const Command& command);
void QueueAnswers(Stage& stage, const Command& command);
void QueueFile(Stage& stage, const Command& command);
void Start(Stage& stage, const Command& command);
void Begin(Stage& stage, const Command& command);

// What the user does.
void PressDown(Stage& stage, const Command& command);
void LetGo(Stage& stage, const Command& command);
void PressKeys(Stage& stage, const Command& command);
void PressWithCharacter(Stage& stage, const Command& command);
void TypeText(Stage& stage, const Command& command);
void SetText(Stage& stage, const Command& command);
void PasteText(Stage& stage, const Command& command);
void FocusBox(Stage& stage, const Command& command);
void Click(Stage& stage, const Command& command);
void DoubleClick(Stage& stage, const Command& command);
void RightClick(Stage& stage, const Command& command);
void ChooseItem(Stage& stage, const Command& command);
void PressTab(Stage& stage, const Command& command);
void Slide(Stage& stage, const Command& command);
void Spin(Stage& stage, const Command& command);
void MouseDown(Stage& stage, const Command& command);
void MouseUp(Stage& stage, const Command& command);
void MouseMove(Stage& stage, const Command& command);
void ResizeWindow(Stage& stage, const Command& command);
void CloseWindow(Stage& stage, const Command& command);

// What must be so.
void ExpectValue(Stage& stage, const Command& command);
void ExpectMessage(Stage& stage, const Command& command);
void ExpectNoMessage(Stage& stage, const Command& command);
void ExpectDialog(Stage& stage, const Command& command);
void ExpectSounds(Stage& stage, const Command& command);
void ExpectHistory(Stage& stage, const Command& command);
void ExpectFocus(Stage& stage, const Command& command);
void ExpectClipboard(Stage& stage, const Command& command);
void ExpectEnded(Stage& stage, const Command& command);
void ExpectFailure(Stage& stage, const Command& command);
void ExpectFile(Stage& stage, const Command& command);
void ExpectLine(Stage& stage, const Command& command);
void ExpectNoFile(Stage& stage, const Command& command);
void ExpectDrawn(Stage& stage, const Command& command);
void ExpectNotDrawn(Stage& stage, const Command& command);
void ExpectScale(Stage& stage, const Command& command);
void ExpectCount(Stage& stage, const Command& command);

// Looking.
void Show(Stage& stage, const Command& command);
void Forget(Stage& stage, const Command& command);
void Dump(Stage& stage, const Command& command);
void SaveImage(Stage& stage, const Command& command);

}  // namespace drive
