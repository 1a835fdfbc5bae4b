import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import check

ENGLISH = ('<?xml version="1.0" encoding="UTF-8"?>\n<QorLang><Strings><STR_OK>OK</STR_OK>'
           '<STR_FILE>File %s, %d bytes</STR_FILE></Strings>'
           '<IDD_DLG_ONE><Text>One</Text><Ctrl100>Name</Ctrl100></IDD_DLG_ONE></QorLang>')
GERMAN = (ENGLISH.replace("File %s, %d bytes", "Datei %s, %d Bytes").replace(">One<", ">Eins<"))


class CheckTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("lang/en/App.exe.xml", ENGLISH)
        self.write("lang/de/App.exe.xml", GERMAN)

    def write(self, name, content):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))

    def faults(self):
        return check.check(self.root)[0]

    def assert_one_fault(self, *parts):
        faults = self.faults()
        self.assertEqual(len(faults), 1, faults)
        for part in parts:
            self.assertIn(part, faults[0])

    def test_complete_data_has_no_faults(self):
        self.assertEqual(self.faults(), [])

    def test_missing_key(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("<STR_OK>OK</STR_OK>", ""))
        self.assert_one_fault("lang/de/App.exe.xml", "Strings", "STR_OK is missing")

    def test_extra_key(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("<Strings>", "<Strings><STR_MORE>x</STR_MORE>"))
        self.assert_one_fault("STR_MORE is not in English")

    def test_missing_section(self):
        self.write("lang/de/App.exe.xml", GERMAN[:GERMAN.index("<IDD")] + "</QorLang>")
        self.assert_one_fault("IDD_DLG_ONE: is missing")

    def test_missing_file(self):
        (self.root / "lang/de/App.exe.xml").unlink()
        self.assert_one_fault("lang/de", "App.exe.xml is missing")

    def test_extra_file(self):
        self.write("lang/de/Other.xml", GERMAN)
        self.assert_one_fault("Other.xml is not in English")

    def test_other_order_of_placeholders(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("Datei %s, %d Bytes", "%d Bytes in %s"))
        self.assert_one_fault("STR_FILE has the placeholders")

    def test_other_kind_of_placeholder(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("%d", "%s"))
        self.assert_one_fault("STR_FILE has the placeholders")

    def test_lone_percent_sign(self):
        for name, text in (("en", ENGLISH), ("de", GERMAN)):
            self.write(f"lang/{name}/App.exe.xml", text.replace("<STR_OK>OK<", "<STR_OK>100 %<"))
        faults = self.faults()
        self.assertEqual(len(faults), 2)
        self.assertIn("begins no placeholder", faults[0])

    def test_not_well_formed(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("</Strings>", ""))
        self.assertIn("is not well-formed", self.faults()[0])

    def test_not_utf8(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("Datei", "Größe").encode("latin-1"))
        self.assertIn("is not UTF-8", self.faults()[0])

    def test_other_root_element(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("QorLang", "Lang"))
        self.assertIn("the root element is Lang", self.faults()[0])

    def test_key_twice(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace("<Strings>", "<Strings><STR_OK>Gut</STR_OK>"))
        self.assert_one_fault("STR_OK stands here twice")

    def test_empty_text(self):
        self.write("lang/de/App.exe.xml", GERMAN.replace(">OK<", "> <"))
        self.assert_one_fault("STR_OK is empty")

    def test_control_key_outside_of_a_dialog(self):
        for name, text in (("en", ENGLISH), ("de", GERMAN)):
            self.write(f"lang/{name}/App.exe.xml", text.replace("<Strings>", "<Strings><Ctrl7>x</Ctrl7>"))
        self.assertEqual(len(self.faults()), 2)

    def test_used_key_without_text(self):
        self.write("QorUI/app/A.cpp", 'f(L"STR_OK");\ng(L"STR_NONE", L"IDD_DLG_ONE");\n')
        self.assert_one_fault("QorUI/app/A.cpp:2", "STR_NONE")

    def test_used_dialog_without_element(self):
        self.write("hosts/console/B.h", 'x = L"IDD_DLG_TWO";\n')
        self.assert_one_fault("hosts/console/B.h:1", "IDD_DLG_TWO")

    def with_text(self, text):
        for name, data in (("en", ENGLISH), ("de", GERMAN)):
            self.write(f"lang/{name}/App.exe.xml", data.replace("<Strings>", "<Strings>" + text))

    def test_two_texts_of_a_page_share_a_mnemonic(self):
        self.with_text("<STR_ONE>&amp;One</STR_ONE><STR_TWO>Tw&amp;o</STR_TWO>")
        self.assertEqual(self.faults(), [])
        self.write("hosts/console/pages/FirstPage.cpp", 'f(L"STR_ONE");\n')
        self.write("hosts/console/pages/OtherPage.cpp", 'f(L"STR_TWO");\n')
        self.assertEqual(self.faults(), [])
        self.write("hosts/console/pages/OtherPage.cpp", 'f(L"STR_TWO");\nf(L"STR_ONE");\n')
        faults = self.faults()
        self.assertEqual(len(faults), 2, faults)
        self.assertIn("lang/de: OtherPage: STR_ONE and STR_TWO share the mnemonic O", faults)

    def test_two_texts_of_a_dialog_share_a_mnemonic(self):
        for name, text in (("en", ENGLISH), ("de", GERMAN)):
            text = text.replace("Name</Ctrl100>", "&amp;Name</Ctrl100><Ctrl101>&amp;Next</Ctrl101>")
            self.write(f"lang/{name}/App.exe.xml", text)
        self.assertEqual(len(self.faults()), 2)

    def test_two_buttons_beside_each_other_share_a_mnemonic(self):
        self.with_text("<STR_YES>&amp;Yes</STR_YES><STR_NO>Not &amp;yet</STR_NO>")
        self.assertIn("lang/de: buttons: STR_NO and STR_YES share the mnemonic Y", self.faults())

    def test_a_doubled_ampersand_is_no_mnemonic(self):
        self.assertIsNone(check.mnemonic("Save && close"))
        self.assertEqual(check.mnemonic("Save && &close"), "C")

    def test_missing_english(self):
        (self.root / "lang/en/App.exe.xml").unlink()
        (self.root / "lang/en").rmdir()
        self.assert_one_fault("lang/en: is missing")

    def test_status_tells_faults(self):
        with contextlib.redirect_stdout(io.StringIO()) as out:
            self.assertEqual(check.main(["--root", str(self.root)]), 0)
        self.assertIn("4 texts", out.getvalue())
        self.write("lang/de/App.exe.xml", "damaged")
        with contextlib.redirect_stderr(io.StringIO()) as err:
            self.assertEqual(check.main(["--root", str(self.root)]), 1)
            self.assertEqual(check.main(["--root", str(self.root / "none")]), 2)
        self.assertIn("App.exe.xml", err.getvalue())


class PlaceholderTest(unittest.TestCase):
    def test_kinds(self):
        cases = {"%s %d": ["s", "d"], "%i": ["d"], "%5.2f": ["f"], "%*d": ["*d"], "%-*.*s": ["**s"], "%I64u": ["qu"],
                 "%llx": ["qx"], "%hs": ["ns"], "%S": ["ns"], "%ls": ["s"], "100%%": [], "%": ["?"], "%y": ["?y"],
                 "%zu": ["zu"], "%p": ["p"], "%n": ["n"]}
        for text, kinds in cases.items():
            with self.subTest(text):
                self.assertEqual(check.placeholders(text), kinds)


if __name__ == "__main__":
    unittest.main()
