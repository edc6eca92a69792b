// make_waves FOLDER writes the eight sounds of the program into FOLDER, which it makes if need be. It writes the same bytes at each run.
//
// Whoever counts has both eyes at the microscope and hears these sounds ten thousand times a day: each tells one thing, at once, and
// none tires. So all are soft tones, most of them of one chord, C major, and no note starts or ends with a step. The three banks are
// equally loud, what must not be missed 6 dB louder, also on a small speaker, which hears of a low note its overtones alone. A new sound
// cuts off the one before, so what sets a sound apart lies in its first 60 milliseconds.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kRate = 44100;       // samples a second
constexpr double kAttackMs = 5;    // each note rises softly from 0
constexpr double kReleaseMs = 20;  // and falls to 0 in its last part

struct Wave {
    std::string_view file;
    double peak;  // of its strongest sample, in dBFS: set so that it is as loud as it should be
};

constexpr Wave kWaves[] = {
    {"Key-1.wav", -4.3}, {"Key-2.wav", -8.2}, {"Key-3.wav", -10.5}, {"Opening.wav", -13.7},
    {"Undo.wav", -11.1}, {"Save.wav", -10.5}, {"Alarm.wav", -11.9}, {"Error.wav", -5.1},
};

struct Partial {
    double ratio;  // of the note's frequency
    double level;  // negative: it begins downwards
    double haste;  // how many times as fast as the first partial it dies away
};

constexpr Partial kWood[] = {{1, 1.00, 1}, {2, 0.55, 1.1}, {3, 0.40, 1.6}};
constexpr Partial kMallet[] = {{1, 1.00, 1}, {2, 0.16, 1.6}, {4, 0.10, 4}};
constexpr Partial kBell[] = {{1, 1.00, 1}, {2, 0.30, 1.5}, {3, 0.08, 3}};
constexpr Partial kWhistle[] = {{1, 1.00, 1}, {2, 0.22, 1}};
// The fourth to the eighth carry it on small speakers; the signs keep its peaks low, so that it can be loud.
constexpr Partial kHorn[] = {{1, 1.00, 1},  {2, -0.50, 1}, {3, 0.35, 1},  {4, -0.50, 1},
                             {5, -0.50, 1}, {6, -0.45, 1}, {7, -0.30, 1}, {8, -0.20, 1}};

struct Note {
    std::string_view file;
    double start_ms;
    double length_ms;
    double from_hz;
    double to_hz;    // the pitch glides evenly to this
    double level;    // beside the other notes of the file
    double ring_ms;  // in which it falls to 1/e
    std::span<const Partial> voice;
};

constexpr Note kNotes[] = {
    // The counting keys. The banks climb through a chord in steps of a sixth: G4, E5, C6.
    {"Key-1.wav", 0, 75, 391.995, 391.995, 1.0, 30, kWood},
    {"Key-2.wav", 0, 68, 659.255, 659.255, 1.0, 21, kMallet},
    {"Key-3.wav", 0, 60, 1046.502, 1046.502, 1.0, 18, kMallet},
    // The welcome: the chord opens, each note ringing into the next.
    {"Opening.wav", 0, 900, 261.626, 261.626, 0.8, 260, kBell},
    {"Opening.wav", 120, 880, 523.251, 523.251, 0.8, 260, kBell},
    {"Opening.wav", 240, 860, 783.991, 783.991, 0.8, 260, kBell},
    {"Opening.wav", 360, 940, 1046.502, 1046.502, 1.0, 280, kBell},
    // A count taken back: a fall of two octaves, the only glide.
    {"Undo.wav", 0, 130, 987.767, 260.0, 1.0, 70, kWhistle},
    // Saved: two notes upwards, a fifth, as in "done".
    {"Save.wav", 0, 110, 523.251, 523.251, 0.9, 45, kBell},
    {"Save.wav", 95, 165, 783.991, 783.991, 1.0, 55, kBell},
    // A full hundred: a bright trill in two bursts, G6 and D6, above all else. The first burst says it all.
    {"Alarm.wav", 0, 65, 1567.982, 1567.982, 1.0, 60, kWhistle},
    {"Alarm.wav", 55, 65, 1174.659, 1174.659, 1.0, 60, kWhistle},
    {"Alarm.wav", 110, 65, 1567.982, 1567.982, 1.0, 60, kWhistle},
    {"Alarm.wav", 165, 80, 1174.659, 1174.659, 1.0, 60, kWhistle},
    {"Alarm.wav", 310, 65, 1567.982, 1567.982, 1.0, 60, kWhistle},
    {"Alarm.wav", 365, 65, 1174.659, 1174.659, 1.0, 60, kWhistle},
    {"Alarm.wav", 420, 65, 1567.982, 1567.982, 1.0, 60, kWhistle},
    {"Alarm.wav", 475, 80, 1174.659, 1174.659, 1.0, 60, kWhistle},
    // Refused: two low knocks, F3.
    {"Error.wav", 0, 120, 174.614, 174.614, 1.0, 70, kHorn},
    {"Error.wav", 140, 170, 174.614, 174.614, 1.0, 80, kHorn},
};

double Rise(double share) {  // from 0 at 0 to 1 at 1, level at both ends
    return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(share, 0.0, 1.0));
}

double NoteAt(const Note& note, double ms) {  // ms: from the start of the note
    const double cycles = (note.from_hz + (note.to_hz - note.from_hz) * ms / note.length_ms / 2) * ms / 1000;
    double tone = 0;
    for (const Partial& partial : note.voice)
        tone += partial.level * std::exp(-ms * partial.haste / note.ring_ms) * std::sin(2 * std::numbers::pi * cycles * partial.ratio);
    return note.level * tone * Rise(ms / kAttackMs) * Rise((note.length_ms - ms) / kReleaseMs);
}

int Samples(double ms) {
    return static_cast<int>(std::lround(ms * kRate / 1000));
}

void Mix(const Note& note, std::vector<double>& sound) {  // one sample more than the note has: a sound ends in 0
    const int start = Samples(note.start_ms);
    const int count = Samples(note.length_ms);
    sound.resize(std::max(sound.size(), static_cast<std::size_t>(start + count + 1)));
    for (int place = 0; place < count; ++place) sound[start + place] += NoteAt(note, place * 1000.0 / kRate);
}

std::vector<double> Sound(std::string_view file) {
    std::vector<double> sound;
    for (const Note& note : kNotes)
        if (note.file == file) Mix(note, sound);
    return sound;
}

void Put(std::string& bytes, std::uint32_t number, int width) {  // the low byte first
    for (int place = 0; place < width; ++place) bytes += static_cast<char>(number >> (8 * place) & 0xff);
}

// A wave file: "RIFF" size "WAVE", the chunk "fmt " with 16 bytes (1 = PCM, channels, rate, bytes a second, bytes a sample, bits), the
// chunk "data". Numbers stand with their low byte first; samples are signed 16-bit, one channel.
std::string WaveFile(const std::vector<double>& sound, double peak) {  // dBFS
    double strongest = 0;
    for (const double value : sound) strongest = std::max(strongest, std::abs(value));
    const double factor = std::pow(10, peak / 20) * 32767 / strongest;
    const auto size = static_cast<std::uint32_t>(2 * sound.size());
    std::string bytes = "RIFF";
    Put(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    Put(bytes, 16, 4);
    Put(bytes, 1, 2);
    Put(bytes, 1, 2);
    Put(bytes, kRate, 4);
    Put(bytes, 2 * kRate, 4);
    Put(bytes, 2, 2);
    Put(bytes, 16, 2);
    bytes += "data";
    Put(bytes, size, 4);
    for (const double value : sound) Put(bytes, static_cast<std::uint32_t>(std::lround(value * factor)), 2);
    return bytes;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_waves FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::error_code ignored;  // a folder that cannot be made shows in the first file
    std::filesystem::create_directories(folder, ignored);
    for (const Wave& wave : kWaves) {
        std::ofstream file(folder / wave.file, std::ios::binary);
        if (!(file << WaveFile(Sound(wave.file), wave.peak) << std::flush)) {
            std::fprintf(stderr, "make_waves: cannot write %s\n", (folder / wave.file).string().c_str());
            return 1;
        }
    }
}
