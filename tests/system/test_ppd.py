# SPDX-License-Identifier: Apache-2.0
"""Every choice of the PPD: what it writes into the job's header, ticket and set-up.

The table expected/ppd_choices.txt has a line for each: the option and choice, "xml" when the choice
switches the XML ticket on, and the lines that differ from a job without it. Options that only mean
something beside others are given with those. Run this file with --update to write the table anew,
then read what has changed in it.
"""

import difflib
import functools
import os
import pathlib
import re
import subprocess
import sys
import unittest

from zarvo import SANITIZED, run_filter

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PPD = BIN.parent / "ppd/zarvo.ppd"
TABLE = SOURCE / "tests/system/expected/ppd_choices.txt"

XML = "com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b=true"
# As a converter writes it whose pages are imposed as they are; others' are written anew, with a date.
JOB = (b"%!PS-Adobe-3.0\n%%Creator: any (ps2write)\n%%Pages: 1\n%%EndComments\n%%BeginProlog\n%%EndProlog\n"
       b"%%BeginSetup\n%%EndSetup\n%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\nshowpage\n"
       b"%%Trailer\n%%EOF\n")  # fmt: skip
# What a choice needs beside it to show.
WITH = {
    option: beside
    for beside, options in {
        "JobType=Save": "JobPIN SavedJobName SavedJobFormat",
        "Accounting=Account": "AccountUser",
        "Accounting=Account AccountUser=Custom.somebody": "AccountID",
        "AccountUser=Custom.somebody AccountID=Custom.4711": "Accounting",
        "Punch=Left": "HoleCount",
        "Separators=Blank": "SeparatorColor",
        "FrontCover=Blank": "CoverColorFront",
        "BackCover=Blank": "CoverColorBack",
        "BackgroundForm=Custom.Letterhead": "FormCyclePages",
        "Watermark=DRAFT": "WMPlace WMPages WMTurn",
        "BookletLayout=LeftToRight": "BookletFinish BookletPaper BookletOutline BookletRotate "
                                     "BookletGutter BookletCreep",
        "FaxNumber=Custom.0911-4711": "FaxResolution FaxSpeed FaxConfirmation FaxPrefix FaxBilling",
    }.items()
    for option in options.split()
}
# Cover sheets are drawn; what they show is the fax cover's business.
UNSEEN = {"FaxCover", "FaxRecipient", "FaxSender", "FaxNotes"}
# The sanitizers, under which a filter takes ten times as long to start, see a third of the choices.
EVERY = 3 if SANITIZED else 1
CUSTOM = {"int": "7", "string": "A\\ \\&\\ B", "passcode": "0391"}


def choices():
    """(option, choice) for all of them, and a custom value for each option that takes one."""
    text = PPD.read_text(encoding="utf-8")
    for option, body in re.findall(r"\*OpenUI \*(\w+)/.*?\n(.*?)\*CloseUI", text, re.S):
        if option == "PageRegion":
            continue
        for choice in re.findall(rf"^\*{option} ([^/]+)/", body, re.M):
            yield option, choice
        if kind := re.search(rf"^\*ParamCustom{option} Value/.*: 1 (\w+)", text, re.M):
            yield option, "Custom." + CUSTOM[kind[1]]


@functools.cache
def run(options):
    done = run_filter(options, JOB, ppd=PPD, ZARVO_APPLICATION_SUPPORT=str(STORE_ROOT))
    if done.returncode == 1:  # by the queue's policy; the log has its reason
        return re.findall(r"(?<=not printed: )[^;]*", done.stderr.decode())
    assert b"ERROR" not in done.stderr, done.stderr
    text = done.stdout.decode("utf-8", "replace").replace("\x1b", "ESC")
    # The procedures of the page hooks and of the booklet are the same for every choice.
    text = re.sub(r"currentglobal\nfalse setglobal\nuserdict /ZRVhooks.*?\n(?=/flipx)", "", text, flags=re.S)
    text = re.sub(r'<([^ >]+) syntax ?="\w+"(?: xml:space="preserve")?>(.*)</[^>]+>', r"\1: \2", text)
    text = re.sub(r'<([^ >]+) syntax="(?:collection|1setOf)">', r"\1 {", text)
    text = re.sub(r"</(?!jtml|job-temp)[^ >]+>", "}", text)
    text = re.sub(r"%%BeginResource: procset ZRV.*?%%EndResource\n", "", text, flags=re.S)
    return text.splitlines()


def lines():
    for option, choice in [(option, choice) for option, choice in choices() if option not in UNSEEN][::EVERY]:
        beside = WITH.get(option, "")
        added = [
            line[0] + " ".join(line[1:].split())
            for line in difflib.ndiff(run(f"{XML} {beside}"), run(f"{XML} {beside} {option}={choice}"))
            if line[0] in "+-" and line[1:].strip() not in ("", "}")
        ]
        switches = "xml" if any("<jtml" in line for line in run(f"{option}={choice}")) else "-"
        alone = run(f"{option}={choice}")
        what = f"(refused: {alone[0]})" if len(alone) == 1 else "  ".join(added) or "(nothing)"
        yield f"{option}={choice} | {beside or '-'} | {switches} | {what}"


def setUpModule():
    """The stores that come with the PPD, in their place."""
    global STORE_ROOT
    STORE_ROOT = pathlib.Path(os.environ["ZARVO_TEST_OUTPUT"]) / "ppd"
    (STORE_ROOT / "Zarvo").mkdir(parents=True, exist_ok=True)
    for name in ("watermarks", "housetickets"):
        target = STORE_ROOT / f"Zarvo/com.zarvo.printing.{name}.plist"
        target.write_bytes((SOURCE / f"ppd/{name}.plist").read_bytes())


class Choices(unittest.TestCase):
    maxDiff = None

    def test_table(self):
        self.assertEqual(TABLE.read_text(encoding="utf-8").splitlines()[::EVERY], list(lines()))

    def test_ppd_is_sound(self):
        done = subprocess.run(["cupstestppd", "-W", "filters", str(PPD)], capture_output=True, text=True)
        said = done.stdout.splitlines()
        self.assertIn("PASS", said[0], done.stdout)
        # Newer versions know a rounded name for one size; the exact one is what queues have stored.
        known = re.compile('zarvofilter|"195.09x269.88mm" should be the Adobe standard name')
        self.assertEqual([line for line in said[1:] if not known.search(line)], [])

    def test_translations_are_whole(self):
        """Every text of the source is in each catalogue."""
        texts = set(re.findall(
            r'^ *(?:#media|Group|Option|\*?Choice|Attribute "(?:Param)?Custom\w+") "[^"/]+/([^"]+)"',
            (SOURCE / "ppd/zarvo.drv").read_text(), re.M,
        ))  # fmt: skip
        for catalogue in (SOURCE / "ppd/po").glob("*.po"):
            content = catalogue.read_text(encoding="utf-8")
            entries = dict(re.findall(r'^msgid "(.+)"\nmsgstr "(.*)"', content, re.M))
            self.assertEqual(texts - set(entries), set(), catalogue)
            self.assertNotIn("", entries.values(), catalogue)


if __name__ == "__main__":
    if "--update" in sys.argv:
        setUpModule()
        TABLE.parent.mkdir(exist_ok=True)
        TABLE.write_text("\n".join(lines()) + "\n", encoding="utf-8")
    else:
        unittest.main()
