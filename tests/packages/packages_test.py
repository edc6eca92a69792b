"""What the packages hold is right, and who installs one can count with it, in a clean root of this Debian or Ubuntu.

    unshare --mount --propagation private python3 packages_test.py BUILD    as root: the packages of this build folder

The smallest system and the packages fetched for it are kept in the build folder's clean_root, so that a second run is quick.
"""
import pathlib
import platform
import shutil
import sys
import tempfile
import unittest

from clean_root import ENVIRONMENT, CleanRoot, run

TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "tests/windows"))
from count_test import STAMP, expected_sheet  # noqa: E402
from desk import START, StartedProgram  # noqa: E402
from keyboard import ENTER, NAMED_KEY_CODES, NAMED_KEYS, PAD, SHIFT_1, SHIFT_2, TAB, UNDO  # noqa: E402
from spoken import wait_for  # noqa: E402
from x11_desk import X11Desk  # noqa: E402

BUILD = pathlib.Path(sys.argv[1]).resolve()
APPLICATION = "org.marlbrook.Marlbrook"
SYSTEM_TREE = "usr/share/marlbrook"
SYSTEM_MANUAL = "usr/share/doc/marlbrook/manual"
PROGRAMS = ["marlbrook", "marlbrook-figure", "marlbrook-drive"]


class Packages(unittest.TestCase):
    """All tests have one root and one desk; each has a user of its own."""

    @classmethod
    def setUpClass(cls):
        cls.work = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-packages-"))
        cls.addClassCleanup(shutil.rmtree, cls.work)
        cls.work.chmod(0o755)
        run("cpack", "-B", cls.work, cwd=BUILD)
        cls.deb, = cls.work.glob("*.deb")
        cls.archive, = cls.work.glob("*.tar.gz")
        cls.desk = X11Desk()
        cls.addClassCleanup(cls.desk.close)
        cls.root = CleanRoot(BUILD / "clean_root", cls.work)
        cls.root.apt_get("install", cls.deb)

    @staticmethod
    def version(package):
        return run("dpkg-deb", "--field", package, "Version").strip()

    def package_of_version(self, version):
        """The same program under another number."""
        folder = self.work / version
        run("cpack", "-G", "DEB", "-B", folder, "-D", f"CPACK_PACKAGE_VERSION={version}", cwd=BUILD)
        package, = folder.glob("*.deb")
        return package

    def new_user(self):
        """Her name and her home."""
        name = "user" + str(len(list(self.work.glob("user*"))))
        self.root.add_user(name, self.work / name)
        return name, self.work / name

    def start(self, user, home, program="marlbrook"):
        own = {"HOME": str(home), "DISPLAY": self.desk.env["DISPLAY"]}
        started = StartedProgram(self.desk, self.root.as_user(user, program), env={**ENVIRONMENT, **own})
        self.addCleanup(started.stop)
        return started

    def make_keyboard_known(self, program):
        self.desk.window("Initialize")
        program.press(*NAMED_KEYS, ENTER)
        self.desk.gone("Initialize")
        self.desk.window(START)

    def files(self, folder):
        """The bytes of each file below the folder, by its path there."""
        return {str(file.relative_to(folder)): file.read_bytes() for file in folder.rglob("[!.]*") if file.is_file()}

    def assert_same_files(self, files, expected, when):
        self.assertEqual([name for name in sorted({*files, *expected}) if files.get(name) != expected.get(name)], [], when)

    def files_of_known_keyboard(self):
        """The installed files as the first run leaves them."""
        files = self.files(self.root.path / SYSTEM_TREE)
        for code in NAMED_KEY_CODES:
            files["References/KeySetting.csv"] = files["References/KeySetting.csv"].replace(b",999,", b",%d," % code, 1)
        return files

    def test_menu_entry_and_software_centre_entry_are_valid(self):
        share = self.root.path / "usr/share"
        run("desktop-file-validate", share / f"applications/{APPLICATION}.desktop")
        run("appstreamcli", "validate", "--no-net", share / f"metainfo/{APPLICATION}.metainfo.xml")

    def test_what_the_menu_entry_names_is_installed(self):
        entry = (self.root.path / f"usr/share/applications/{APPLICATION}.desktop").read_text(encoding="utf-8").splitlines()
        self.assertIn("Exec=marlbrook", entry)
        self.assertTrue(self.root.holds("usr/bin/marlbrook"))
        self.assertIn(f"Icon={APPLICATION}", entry)
        for size in [16, 22, 24, 32, 48, 64, 128, 256, 512]:
            icon = self.root.path / f"usr/share/icons/hicolor/{size}x{size}/apps/{APPLICATION}.png"
            self.assertEqual(run("identify", "-format", "%m %wx%h", icon), f"PNG {size}x{size}")
        self.assertTrue(self.root.holds(f"usr/share/icons/hicolor/scalable/apps/{APPLICATION}.svg"))

    def test_the_package_follows_the_rules_of_debian(self):
        said = run("lintian", "--display-info", "--fail-on", "error,warning", self.deb)
        self.assertNotIn("hardening", said)

    def test_the_programs_are_hardened(self):
        for name in PROGRAMS:
            program = self.root.path / "usr/bin" / name
            run("hardening-check", "--nocfprotection", program)  # its mark takes start-up objects of Debian that have it, and none has
            if platform.machine() == "x86_64":
                self.assertGreater(run("objdump", "--disassemble", program).count("endbr64"), 1000, name)

    def test_the_programs_know_no_folder_of_their_build(self):
        for name in PROGRAMS:
            for folder in [TOP, BUILD]:
                self.assertNotIn(bytes(folder), (self.root.path / "usr/bin" / name).read_bytes(), name)

    def test_a_new_user_counts_and_saves(self):
        user, home = self.new_user()
        program = self.start(user, home)
        self.make_keyboard_known(program)
        own = home / ".local/share/marlbrook"
        self.assert_same_files(self.files(own), self.files_of_known_keyboard(), "after the first run")
        self.assertEqual({file.owner() for file in own.rglob("*")}, {own.owner()}, "all is hers")
        self.assertTrue((own / "References/Back up files").is_dir())

        program.begin("12.5")
        program.press(*PAD[:10])
        program.hold(SHIFT_1)
        program.press(*PAD[10:20])
        program.hold(SHIFT_2)
        program.press(*PAD[20:30])
        program.release(SHIFT_1, SHIFT_2)
        program.press(UNDO)
        sheet = home / "core.csv"
        saved = program.save_as(sheet)
        counts = {slot: 1 for slot in [*range(1, 11), *range(56, 66), *range(111, 120)]}
        self.assertEqual(STAMP.sub(b"STAMP", saved).decode(), expected_sheet(sheet, counts).decode())

    def test_what_is_the_users_own_outlives_starts_and_packages(self):
        user, home = self.new_user()
        program = self.start(user, home)
        self.make_keyboard_known(program)
        own = home / ".local/share/marlbrook"
        (own / "References/My_favorite.jpg").write_bytes(b"her picture")
        (own / "Sound files/Key-1.wav").write_bytes(b"her sound")
        hers = self.files(own)

        def start_again(after):
            program.start()
            self.desk.window(START)
            program.stop()
            self.assert_same_files(self.files(own), hers, "after " + after)

        program.stop()
        (own / "Sound files/Alarm.wav").unlink()  # as if a full disk had broken off the first start
        start_again("a second start")
        self.root.apt_get("install", "--reinstall", self.deb)
        start_again("the package was installed over itself")
        self.addCleanup(self.root.apt_get, "install", self.deb)
        self.root.apt_get("purge", "marlbrook")
        self.assertFalse(self.root.holds(SYSTEM_TREE))
        self.assertFalse(self.root.holds("usr/bin/marlbrook"))
        self.assert_same_files(self.files(own), hers, "after the package was removed")
        self.root.apt_get("install", self.deb)
        start_again("the package was installed anew")

    def test_an_upgrade_a_downgrade_and_a_purge_leave_the_users_files_alone(self):
        user, home = self.new_user()
        program = self.start(user, home)
        self.make_keyboard_known(program)
        program.begin("12.5")
        program.press(*PAD[:30])
        sheet = home / "core.csv"
        program.save_as(sheet)
        program.press(*PAD[:3])  # in the rescue alone
        wait_for("the rescue", (home / ".local/share/marlbrook/References/Back up files/Rescue.csv").exists)
        program.stop()
        newer = self.package_of_version(self.version(self.deb) + ".1")

        def install(package):
            self.root.apt_get("install", "--allow-downgrades", package)
            self.assertEqual(self.root.run("dpkg-query", "--show", "--showformat", "${Version}", "marlbrook"), self.version(package))

        def open_and_save():
            program.start()
            self.desk.window(START)
            program.press(TAB, ENTER)  # Open data file or template
            program.answer_file_dialog("Open", sheet)
            self.desk.window(r"Marlbrook 2\.7\.5 - \[core\]")
            program.press(PAD[0])
            program.save_again(sheet)
            program.stop()

        self.addCleanup(self.root.apt_get, "install", "--allow-downgrades", self.deb)
        steps = {"an upgrade": lambda: install(newer), "a downgrade": lambda: install(self.deb),
                 "a purge": lambda: self.root.apt_get("purge", "marlbrook")}
        for count, (step, do) in enumerate(steps.items(), 1):
            hers = self.files(home)
            self.assertIn(".local/share/marlbrook/References/KeySetting.csv", hers)
            do()
            self.assert_same_files(self.files(home), hers, "after " + step)
            if step == "a purge":
                install(self.deb)
                self.assert_same_files(self.files(home), hers, "after the package was installed anew")
            open_and_save()
            counts = {slot: 1 for slot in range(2, 31)} | {1: 1 + count}
            self.assertEqual(STAMP.sub(b"STAMP", sheet.read_bytes()).decode(), expected_sheet(sheet, counts).decode())

    def test_the_driver_plays_the_demonstration(self):
        user, home = self.new_user()
        shutil.copy(TOP / "docs/demo.drive", home)
        run(*self.root.as_user(user, "sh", "-c", f"QT_QPA_PLATFORM=offscreen marlbrook-drive --windows {home}/demo.drive"),
            env={**ENVIRONMENT, "HOME": str(home)})
        self.assertIn(b'"Sample name","12.5","15"', (home / "mere.csv").read_bytes())

    def test_the_figure_of_a_core_is_drawn(self):
        user, home = self.new_user()
        run(*self.root.as_user(user, "marlbrook-figure", f"/{SYSTEM_MANUAL}/lake_core.csv", "--output", home / "figures"),
            env={**ENVIRONMENT, "HOME": str(home)})
        self.assertIn(b"Pinus", (home / "figures/lake_core.svg").read_bytes())
        self.assertTrue((home / "figures/lake_core.pdf").read_bytes().startswith(b"%PDF"))
        self.assertTrue(self.root.holds("usr/share/man/man1/marlbrook-figure.1.gz"))
        self.assertTrue(self.root.holds("usr/share/bash-completion/completions/marlbrook-figure"))

    def test_the_folder_of_the_archive_is_the_programs_folder(self):
        user, home = self.new_user()
        run(*self.root.as_user(user, "tar", "--extract", "--file", self.archive, "--directory", home))
        folder, = home.glob("marlbrook*")
        program = self.start(user, home, folder / "marlbrook")
        self.make_keyboard_known(program)
        files = self.files(folder)
        for name in ["marlbrook", "marlbrook-figure"]:
            files.pop(name)
        self.assertIn("manual/index.html", files)
        files = {name: content for name, content in files.items() if not name.startswith("manual/")}
        self.assert_same_files(files, self.files_of_known_keyboard(), "after the first run")
        self.assertFalse((home / ".local/share/marlbrook").exists())
        program.begin("3")
        program.press(*[PAD[6]] * 100)
        back_ups = folder / "References/Back up files"
        wait_for(f"a back-up in {back_ups}", lambda: any(back_ups.iterdir()))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
