"""Programs that think they are run in a terminal."""
import errno
import fcntl
import os
import pty
import select
import struct
import subprocess
import termios
import time

LIMIT = 60


class Terminal:
    """A terminal of so many columns, and what a program prints to it."""

    def __init__(self, columns):
        self.master, self.slave = pty.openpty()
        fcntl.ioctl(self.slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        self.text = ""

    def start(self, command, **options):
        """The streams that the options do not name are the terminal's."""
        options = {"stdin": self.slave, "stdout": self.slave, "stderr": self.slave, "start_new_session": True, **options}
        self.process = subprocess.Popen(command, **options)
        os.close(self.slave)

    def send(self, keys):
        os.write(self.master, keys.encode())

    def _read(self):
        """False when nobody has the terminal open any more."""
        if not select.select([self.master], [], [], 0.05)[0]:
            return self.process.poll() is None
        try:
            piece = os.read(self.master, 65536)
        except OSError as error:
            if error.errno != errno.EIO:
                raise
            return False
        self.text += piece.decode()
        return bool(piece)

    def wait_for(self, text):
        until = time.monotonic() + LIMIT
        while text not in self.text:
            if not self._read() or time.monotonic() > until:
                raise AssertionError(f"{text!r} is not in {self.text!r}")

    def finish(self):
        """The exit code."""
        until = time.monotonic() + LIMIT
        while self._read():
            if time.monotonic() > until:
                self.process.kill()
                self.process.wait()
                raise AssertionError(f"no end: {self.text!r}")
        os.close(self.master)
        code = self.process.wait(LIMIT)
        self.text = self.text.replace("\r\n", "\n")
        return code
