#include "session/export.h"

#include "platform/failure.h"
#include "platform/services.h"
#include "session/told.h"
#include "windows/main_window.h"

bool Export(const std::function<void(CellWriter&)>& write) {
    CommonDialog& dialog = frmMain.FileDialog;
    if (!dialog.AskForSaving()) return false;
    SaveBegins.Raise(dialog.FileName);
    try {
        const auto file = services.files->OpenForWriting(dialog.FileName);
        CellWriter cells(*file);
        write(cells);
        cells.Close();
        return true;
    } catch (const Failure&) {
        return false;
    }
}
