"""Whatever a program may say to its user stands in the documents, with what it means and what helps."""

import fnmatch
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

# Sources whose texts are no messages, and what they are instead.
OTHER_TEXTS = {
    "base/moment_text.h": "forms of moments",
    "transfers/earlier_copy_name.cpp": "the form of a moment",
    "startup/default_ini.cpp": "the default configuration file",
    "*/command_line.cpp": "the help",
    "apps/*_arguments.cpp": "the help",
    "apps/desktop_about.cpp": "names in a report",
    "ui/about_text.cpp": "licences",
    "eventloop/bus_activation_posix.h": "the name of an interface",
    "apps/logon_task.cpp": "a definition for the system",
    "doctor/doctor_arguments.cpp": "the help",
    "organiser/tour.cpp": "what a tour goes through",
    "link/*": "the trace",
    "ui/debug_log_model.h": "the trace",
    "ui/folder_choice.h": "a prompt that programs replace",
    "ui/qt/core_sentences.cpp": "the messages of other sources, for translators",
    "ui/qt/lcd_line.cpp": "names of fonts",
    "ui/qt/toolkit_texts.cpp": "the toolkit's own captions",
    "ui/qt/log_view.cpp": "names of fonts",
}
# Calls of the toolkit whose texts are captions and hints.
CAPTIONS = {
    "addEntry", "makeButton", "setAccessibleName", "setToolTip", "setWindowTitle", "horizontalAdvance",
    "QCheckBox", "QFileDialog", "QGroupBox", "QLabel", "setNameFilters",
}

TOKEN = re.compile(
    r"""//[^\n]* | /\*.*?\*/ | \#[ \t]*include[^\n]* | '(?:[^'\\\n]|\\.)+' | \s+
    | R"(?P<mark>\w*)\((?P<raw>.*?)\)(?P=mark)" | "(?P<text>(?:[^"\\\n]|\\.)*)" | \w+ | .""",
    re.VERBOSE | re.DOTALL,
)


def string_literals(source):
    """The texts of C++ source, captions left out; literals with only blanks and comments between them are one."""
    texts, open_text, word, calls = [], False, "", []
    for token in TOKEN.finditer(source):
        text = token["raw"] if token["raw"] is not None else token["text"]
        if text is not None:
            if not CAPTIONS.isdisjoint(calls):
                continue
            if open_text:
                texts[-1] += text
            else:
                texts.append(text)
            open_text = True
        elif not token[0].isspace() and not token[0].startswith(("//", "/*")):
            open_text = False
            if token[0] == "(":
                calls.append(word)
            elif token[0] == ")" and calls:
                calls.pop()
            word = token[0]
    return texts


def words_of(text):
    """A text as it is read: without escapes, the marks of keys and of code, and with single blanks."""
    text = text.replace(r"\n", " ").replace(r"\t", " ").replace(r"\"", '"').replace("\\\\", "\\")
    return " ".join(re.sub("[&`]", "", text).split())


def is_message(text):
    """Whether a text has two words that follow each other."""
    return re.search(r"[A-Za-z]{2,}[,:;.]? [A-Za-z]{2,}", text) is not None


class MessageDocuments(unittest.TestCase):
    def test_every_message_stands_in_the_documents(self):
        documents = words_of("\n".join(page.read_text(encoding="utf-8") for page in (ROOT / "docs").glob("*.md")))
        found = 0
        for path in sorted((ROOT / "src").rglob("*")):
            name = path.relative_to(ROOT / "src").as_posix()
            if path.suffix not in (".h", ".cpp") or any(fnmatch.fnmatch(name, other) for other in OTHER_TEXTS):
                continue
            for text in string_literals(path.read_text(encoding="utf-8")):
                for message in filter(is_message, map(words_of, re.split("%[1-9]", text))):
                    found += 1
                    with self.subTest(source=name, message=message):
                        self.assertTrue(message in documents, "no page in docs/ has it; docs/messages.md is the place")
        self.assertGreater(found, 100)

    def test_texts_are_read_as_the_compiler_reads_them(self):
        self.assertEqual(string_literals('f("one " /* and */ "two", "three"); // "four"'), ["one two", "three"])
        self.assertEqual(string_literals('c = \'"\'; d = R"(a "b")"; e = "\\"c\\"";'), ['a "b"', '\\"c\\"'])
        self.assertEqual(string_literals('box->setToolTip(tr("one")); box->setText(tr("two"));'), ["two"])
        self.assertEqual(string_literals('#include "base/clock.h"\nreturn "text";'), ["text"])

    def test_sources_of_other_texts_exist(self):
        names = [path.relative_to(ROOT / "src").as_posix() for path in (ROOT / "src").rglob("*")]
        for other in OTHER_TEXTS:
            with self.subTest(source=other):
                self.assertTrue(fnmatch.filter(names, other))


if __name__ == "__main__":
    unittest.main()
