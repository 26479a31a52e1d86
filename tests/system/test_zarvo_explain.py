#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo explain: jobs of the filter, whole and damaged, in words."""

import json
import unittest

from zarvo import ALL_SECTIONS, ZarvoTest, document

SECRETS = "73914826|Tr0ub4dor|ACCT-77|4111222233"
JOBTYPE = "com.zarvo.print.JobType..d_"
FULL = f"""{ALL_SECTIONS} {JOBTYPE}JobType..n=6 {JOBTYPE}SecurePrintPassword=73914826
com.zarvo.Act.On..n=3 com.zarvo.Act.UID=Tr0ub4dor com.zarvo.Act.AID=ACCT-77
com.zarvo.Act.jtml.On..n=3 com.zarvo.Act.jtml.UID=Tr0ub4dor com.zarvo.Act.jtml.AID=ACCT-77
com.zarvo.print.BannerPage..b=true com.zarvo.print.RequestOffset..b=false
com.zarvo.print.JobNotesJobName='Q3 & more' com.zarvo.print.JobNotesSenderName=Ada
com.zarvo.print.JobLevelStock..d_Size..n=4 com.zarvo.print.JobLevelStock..d_Color..n=2
com.zarvo.print.FinishingOptions..n=4 com.zarvo.print.FinishingStaple1Value..n=5
com.zarvo.print.FinishingDuplex..n=2 com.zarvo.print.Resolution..n=2
com.zarvo.print.SpecialPages.FrontCover..d_Stock..d_Size..n=4
com.zarvo.print.SpecialPages.InsertList..a_0..d_StartPage..n=3
com.zarvo.print.SpecialPages.InsertList..a_0..d_Stock..d_Color..n=5
com.zarvo.print.SpecialPages.ExceptionList..a_0..d_StartPage..n=2
com.zarvo.print.SpecialPages.ExceptionList..a_0..d_EndPage..n=4
com.zarvo.print.SpecialPages.ExceptionList..a_0..d_com.zarvo.print.ImageShiftOptionsPage..d_X1..n=-15
com.zarvo.print.PagesToPrintSelected..n=1 com.zarvo.print.PagesToPrintFrom..n=1
com.zarvo.print.PagesToPrintTo..n=9"""
FAX = f"""{JOBTYPE}JobType..n=5 com.zarvo.print.FaxOptions..d_Resolution..n=3
com.zarvo.print.FaxOptions..d_CreditCard=4111222233
com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber='+1 (202) 555-0143'
com.zarvo.print.FaxRecipientList..a_1..d_Mailbox=12"""


class Explain(ZarvoTest):
    def test_whole_jobs(self):
        jobs = {"explain-secure": (FULL, document(3, (595, 842))), "explain-fax": (FAX, document())}
        for name, (options, job) in jobs.items():
            with self.subTest(name):
                text = self.run_zarvo("explain", stdin=self.filtered(options, job))
                self.assertNotRegex(text, SECRETS)
                self.assert_golden(name + ".txt", text)

    def test_every_finishing_has_its_words(self):
        codes = "3 13 20 21 22 23 28 29 30 31 32 33 34 35 50 52 90 91 92 93 94 95 96 110 111 1000 1001"
        codes += " 1003 1004 1005 1008 1011 1012"
        values = "".join(f'<value syntax="enum">{code}</value>' for code in codes.split())
        job = self.filtered(FULL, document()).replace(b'<value syntax="enum">20</value>', values.encode())
        # Folded in the middle without being a booklet, which is told.
        report = json.loads(self.run_zarvo("explain", "--json", stdin=job, status=1))
        [finishing] = [entry for entry in report["ticket"] if entry["code"] == "finishings"]
        self.assert_golden("explain-finishings.json", json.dumps(finishing, indent=1) + "\n")

    def test_json_says_the_same(self):
        job = self.path("job.prn", self.filtered(FULL, document(3, (595, 842))))
        report = json.loads(self.run_zarvo("explain", "--json", job))
        self.assertEqual(report["document"]["pages"], 3)
        self.assertEqual(report["document"]["page_sizes"], ["A4, 210 x 297 mm"])
        self.assertEqual(report["findings"], [])
        sides = [s["value"] for s in report["ticket"] if s["code"] == "sides"]
        self.assertEqual(sides[0], "two-sided-long-edge")
        self.assertNotRegex(json.dumps(report), SECRETS)

    def test_what_looks_wrong(self):
        good = self.filtered(FULL, document(2))
        for finding, damaged in {
            "the end of the job (PJL EOJ) is missing": good.replace(b"@PJL EOJ", b"@PJL COMMENT"),
            "the PostScript does not end": good[:-200],
            "not well-formed: line 5": good.replace(b"</job-name>", b"</job-nam>"),
            "sides: unknown code three-sided": good.replace(b">two-sided-long-edge<", b">three-sided<"),
            "unknown element sidse": good.replace(b"sides", b"sidse"),
            "the XML ticket does not end": good.replace(b"</jtml>", b"</jtlm>"),
            "unknown code OID_VAL_JOB_TYPE_HOLD": good.replace(b"TYPE_SECURE_PRINT", b"TYPE_HOLD"),
            "unknown setting JOB_PASSWROD": good.replace(b"PASSWORD", b"PASSWROD"),
            "2 job envelopes": good.replace(b"showpage\n%%Page", b"showpage\n\x1b%-12345X@PJL JOB\n"
                                            b"@PJL ENTER LANGUAGE = POSTSCRIPT\n%%Page"),
            "PostScript job 1 of 2: the printer stops before the first page: Error: /typecheck":
                good.replace(b"moveto", b"\x1b%-12345Xfalse (a) add moveto", 1)
                .replace(b"/Helvetica", b"false (a) add /Helvetica", 1),
            "no page is printed": good.replace(b"showpage", b"% no page"),
            "not laid out as a booklet": good.replace(b">20<", b">110<"),
            "no PJL envelope": document(1).encode(),
            "no PostScript document": b"",
            "finishing: unknown code 77": good.replace(b">20<", b">77<"),
            "printed after: no date and time": self.filtered(JOBTYPE + "JobType..n=7", document()),
        }.items():
            with self.subTest(finding):
                self.assertIn(finding, self.run_zarvo("explain", stdin=damaged, status=1))

    def test_hostile_jobs_end(self):
        for job in (b"<?xml?><jtml>" + b"<media-col>" * 100_000, b"@PJL COMMENT x\n" * 200_000,
                    b"<?xml?><jtml><job-template-attributes><finishings>" + b"<value>" * 200_000,
                    b"@PJL JOBPASSWORD=4711\n"
                    b'@PJL COMMENT OID_ATT_SAVE_NAME "\x1b]0;x\xc2\x9b31m";\n'):
            told = self.run_zarvo("explain", stdin=job, status=1)
            for shown in ("\x1b", "\x9b", "4711"):
                self.assertNotIn(shown, told)
        self.run_zarvo("explain", "missing.prn", status=2)
        self.assertIn("missing.prn: No such file", self.errors)


if __name__ == "__main__":
    unittest.main()
