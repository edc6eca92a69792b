"""What runs the code on the page on the file format, which reads a sheet and prints what the program shows of it."""

import subprocess
import tempfile
import unittest
from pathlib import Path

import manual
import program


class Examples(unittest.TestCase):
    """On a sheet that the program has saved."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.work = Path(cls.folder.name)
        cls.page = manual.page("file_format.md")
        cls.shipped = (manual.FOLDER / "lake_core.csv").read_bytes()
        (cls.work / "opened.csv").write_bytes(cls.shipped)
        script = "start\nfile ./opened.csv\nclick frmNext.Command2\n"
        for place in range(12):
            script += f"choose frmMain.Combo2 {4 + 8 * place}\nshow frmMain.Combo2 frmMain.Text3(1) frmMain.Text2(1)\n"
        ran = program.play(script + "file ./lake_core.csv\nclick frmMain.mnuSaveAs\n", cls.work)
        told = [line.split(" = ")[1] for line in ran.stdout.splitlines() if " = " in line]
        cls.expected = "".join(f"{name} {trees} {100 * int(pinus) / int(trees):.1f}\n"
                               for name, trees, pinus in zip(told[0::3], told[1::3], told[2::3]))

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def run_example(self, command, code):
        ran = subprocess.run([*command, "-"], input=code, cwd=self.work, capture_output=True, text=True, timeout=120)
        self.assertEqual(ran.stdout, self.expected, ran.stderr)
