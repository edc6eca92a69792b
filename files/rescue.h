// What a session leaves behind that ends by itself: References/Back up files/Rescue.csv, the rows of a back-up, with all that no save has.
//
// It is written whole beside its old content and takes its name only then. It goes when its sheet is saved, given up, or the user ends
// the program, unless the last save has failed, something else was saved over the sheet's own file, or nothing was asked. What an earlier
// session has left stays until its user has been told of it and has saved a sheet; the copy of this one then has a name of its own,
// Rescue_(2).csv and so on. What its user saves, or lays down, under the name of the copy is left alone. Writing the copy changes nothing
// in the sheet.
#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/files.h"

class Rescue {
public:
    // Hears from now on what becomes of the sheet. `disk` must outlive it; `try_again` is called when the disk has not taken a copy.
    Rescue(WholeFiles& disk, std::function<void()> try_again);
    ~Rescue();
    Rescue(const Rescue&) = delete;
    Rescue& operator=(const Rescue&) = delete;

    void Offer();      // the start face tells of what earlier sessions have left, and Open shows it first
    void Keep();       // writes the copy if the sheet holds anything that neither its file nor the copy has
    void KeepNow();    // the same, and it is on the disk when this returns
    void EndByUser();  // after the sheet was given up. There is nothing to rescue, but for what its user may not know to be in no file

private:
    void SheetIsSafe();
    bool IsSafe() const;
    bool Outlives() const { return is_in_no_file_ || is_unasked_; }  // the copy, its sheet and the program
    void HearOfAnother();
    void HearOfSave();
    void HearOfFailedSave();
    void HearOfGivingUp(bool is_asked);
    void HearOfClearing();
    void TakeOpenedCopy();
    void HearOfReset();
    void HearOfSaving(const std::string& path);
    void MarkInNoFile();
    void Forget();  // the copy of this session
    void BeginAnew();
    void Remove(const std::string& path);

    WholeFiles& disk_;
    std::function<void()> try_again_;
    std::optional<std::string> safe_;  // the sheet as it was when nothing of it could be lost, empty while it is in no file; before the
                                       // main window is there, none
    std::string kept_;                 // the sheet as the copy has it, or as it is without what was given up; empty: it has none
    std::shared_ptr<OwnName> copy_;
    bool has_copy_ = false;       // it has been written, or is being written
    std::string told_;            // path of the copy that the start face tells of, or that is opened; empty: of none
    std::string copied_;          // the sheet as the last copy has it that its user saved elsewhere; empty: there is none
    bool is_unasked_ = false;     // what no file has was given up and nothing asked
    bool is_in_no_file_ = false;  // a save was wanted and failed, or something else was saved over the file of the sheet
};
