"""What the tests share: folders with styles, and a manager of them."""
import json
import os
import pathlib
import tempfile
import unittest
from typing import Any, Dict, Optional

import kostyle

SOURCE = pathlib.Path(os.environ["KOSTYLE_SOURCE"])
EXAMPLES = SOURCE / "examples" / "styles"


def document(id: str = "one", name: str = "One", **members: Any) -> Dict[str, Any]:
    """A style document with one effect."""
    return {"id": id, "name": name, "audioEffect": {"Gate": {"parameter": {"hold": 40}}}, **members}


class StyleTest(unittest.TestCase):
    """Each case has a folder of its own, with folders for system and user styles, and a manager."""

    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.system = self.folder / "system"
        self.user = self.folder / "user"
        self.system.mkdir()
        self.user.mkdir()
        self.manager = self.make_manager()
        self.addCleanup(self.manager.close)

    def make_manager(self, app_id: Optional[str] = None) -> kostyle.Manager:
        return kostyle.Manager(app_id or f"test-{self.id()}", self.system, self.user)

    def write(self, file: pathlib.Path, content: Any) -> pathlib.Path:
        """Writes a file: bytes as they are, anything else as JSON."""
        file.write_bytes(content if isinstance(content, bytes) else json.dumps(content).encode())
        return file

    def read_one(self, content: Any) -> kostyle.UserStyle:
        """The only user style, of such a file."""
        self.write(self.user / "one.kostyle", content)
        self.manager.read()
        [style] = self.manager.user_styles
        return style

    def mutable(self, name: str = "Mutable") -> kostyle.MutableStyle:
        """A mutable style that can be saved."""
        style = self.manager.create_mutable_style()
        style.name = name
        style.audio_effects.append("Gate").parameters["hold"] = 40
        return style
