# SPDX-License-Identifier: Apache-2.0
"""Three servers behind a front, one of which loses its power in the middle: every job comes out, as it was sent."""

import http.client
import os
import pathlib
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
sys.path.insert(0, str(SOURCE / "fleet"))
from fleet import Fault, Sender, learn, run  # noqa: E402
from jobs import make_store  # noqa: E402
from machines import INSIDE, enter_network, why_not  # noqa: E402
from spoolers import Fleet  # noqa: E402

JOBS = 300
KINDS = ["postscript", "secure", "booklet", "watermark"]
REASON = "" if INSIDE in os.environ else why_not()


@unittest.skipIf(REASON, REASON)
class FleetTest(unittest.TestCase):
    def test_jobs_outlive_a_server(self):
        scratch = self.enterContext(tempfile.TemporaryDirectory(prefix="zarvo-fleet-"))
        os.chmod(scratch, 0o755)
        fleet = self.enterContext(Fleet(environment=make_store(scratch + "/data")))
        # What print dialogs ask for, and that nobody sends a PIN in the clear.
        client = {"CUPS_SERVER": fleet.front.machine.address}
        self.assertIn("JobPIN/", fleet.front.run("lpoptions", "-p", "office", "-l", **client))
        for spooler in (fleet.front, fleet.servers[0]):
            connection = http.client.HTTPConnection(spooler.machine.address, spooler.port)
            connection.request("POST", "/printers/office", b"", {"Content-Type": "application/ipp"})
            self.assertEqual(connection.getresponse().status, http.HTTPStatus.UPGRADE_REQUIRED)
            connection.close()
        self.assertEqual(fleet.configure(), [])

        sender = Sender(fleet, KINDS, ["office"], scratch)
        result = run(fleet, sender, JOBS, [Fault("server2 at 33 for 3", JOBS)], learn(fleet, sender, False))
        self.assertEqual((result["jobs"], result["lost"], result["wrong"]), (JOBS + len(KINDS), [], []))
        # What it had just sent, or taken, when its power went it sends once more: all others come once.
        lost_power = fleet.servers[1].machine.address
        copies = [[r["from"] for r in fleet.received() if r["mark"] == [mark]] for mark in result["doubled"]]
        self.assertTrue(all(len(pair) == 2 and lost_power in pair for pair in copies), copies)
        self.assertLessEqual(len(copies), 2)


if __name__ == "__main__":
    if not REASON:
        enter_network()
    unittest.main(verbosity=2)
