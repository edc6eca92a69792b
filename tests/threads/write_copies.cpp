// Writes the copy as the program does, and worse: again before the last one is done, under a name that is taken, into a folder that comes
// and goes, and ends at any moment. Checked here is only what the threads hand to each other: each copy is told of, and after Finish the
// newest is there. The rest, the sanitizer sees that it is built with.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>
#include <random>

#include "platform/failure.h"
#include "platform/qt/qt_files.h"

namespace {
struct Told {
    int taken = 0, refused = 0;
    bool last = false;  // whether the copy told of last was taken
};

[[noreturn]] void Fail(const std::string& what) {
    std::cout << what << "\n";
    std::exit(1);
}

std::shared_ptr<OwnName> NewName(const QDir& folder) {
    auto name = std::make_shared<OwnName>();
    for (int number = 1; number <= 3; ++number) name->paths.push_back(folder.filePath(QString("%1.csv").arg(number)).toStdString());
    return name;
}

void ExpectNewest(const OwnName& name, const std::string& written) {
    try {
        if (QtFiles().ReadAll(name.path) != written) Fail(name.path + " is not what was written last");
    } catch (const Failure&) {
        Fail(name.path + " is gone");
    }
}

// All that was asked for is done, and told.
void Finish(WholeFiles& files) {
    files.Finish();
    QCoreApplication::processEvents();
}

void WriteMany(WholeFiles& files, QDir folder, std::mt19937& dice, Told& told) {
    const auto one_in = [&dice](unsigned sides) { return dice() % sides == 0; };
    auto name = NewName(folder);
    for (int copy = 0; copy < 200; ++copy) {
        const std::string bytes = std::string(dice() % 50000, 'x') + std::to_string(copy);
        files.Write(name, bytes, [&told](bool done) {
            told.last = done;
            ++(done ? told.taken : told.refused);
        });
        if (one_in(4)) QCoreApplication::processEvents();
        if (one_in(16)) {
            Finish(files);
            if (told.last) ExpectNewest(*name, bytes);
        }
        if (one_in(32)) {
            files.Finish();
            if (!name->path.empty()) files.Remove(name->path);
            name = NewName(folder);
        }
        if (one_in(32)) {
            Finish(files);
            QFileInfo(folder.path()).dir().removeRecursively();  // with the one that it lies in: itself it would be made again
        }
        if (one_in(8)) folder.mkpath(".");
    }
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const unsigned seed = std::random_device()();
    std::cout << "seed " << seed << "\n";
    std::mt19937 dice(seed);
    Told told;
    for (int start = 0; start < 20; ++start) {
        QDir back_ups(folder.filePath("references/back-ups"));
        back_ups.mkpath(".");
        QtWholeFiles files;
        WriteMany(files, back_ups, dice, told);
    }
    if (told.taken == 0 || told.refused == 0) Fail("not both was told, that a copy was taken and that one was refused");
}
