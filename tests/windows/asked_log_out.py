"""A log-out that meets a program in the middle of a question."""
from keyboard import ALT, ENTER, SAVE, UP, key_of


class AskedLogOut:
    """Tests of whoever has a program and a log_out that looks what has become of it."""

    def test_also_while_it_asks_whether_to_quit(self):
        self.program.chord(ALT, key_of("f"))
        self.program.press(UP, ENTER)  # Quit, the last one
        self.program.window("Caution!")
        self.log_out()

    def test_also_while_it_asks_for_a_file(self):
        self.program.press(SAVE)
        self.program.window("Save as")
        self.log_out()
