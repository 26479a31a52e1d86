#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Makes bare Debians a print server and a front by the Ansible role, and changes nothing the second time.

    role.py FOLDER_OF_PACKAGES

It takes root, debootstrap and a package mirror. Ansible is installed in the bare system alone, and works
there on itself. Then a job is printed, and recipients come from a CardDAV server.
"""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "Tools"))
from bare_debian import BareDebian, own_release  # noqa: E402

PLAY = "cd /root/fleet/ansible && ansible-playbook -i /root/inventory -c local -e ansible_become=false site.yml --limit {0} {1}"
STORE = "/root/house-store_8_all.deb"
NO_QUEUES = """-e '{"zarvo_queues": {}}'"""  # as long as no spooler runs
INVENTORY = """[servers]
{servers}
[fronts]
{fronts}
[all:vars]
ansible_python_interpreter=/usr/bin/python3
zarvo_packages={packages}
zarvo_stores={stores}
zarvo_queues={{"office": "socket://localhost:9100/?snmp=false&waiteof=false"}}
"""
LOOPBACK = """set -e
python3 -c 'import fcntl, socket, struct
fcntl.ioctl(socket.socket(), 0x8914, struct.pack("16sh14x", b"lo", 0x41))'
"""
# In a network of its own, with the spooler started by hand as there is no init: queues are made, then nothing
# is to be done any more. The system is bare: what listens is Python.
USE = LOOPBACK + """python3 -c 'import socket
s=socket.create_server(("",9100))
while True:
    c,_=s.accept(); data=b""
    while piece:=c.recv(65536): data+=piece
    if data: open("/root/received","wb").write(data)' &
/usr/sbin/cupsd; sleep 2
{play}
{play}
printf '%%!PS-Adobe-3.0\\n%%%%Page: 1 1\\nshowpage\\n' | lp -d office -o JobType=Secure -o JobPIN=Custom.0391 -o Watermark=HOUSE
zarvo watermark list
for i in $(seq 100); do [ ! -s /root/received ] || break; sleep 0.2; done
cat /root/received"""

# The front's classes, what dialogs are told there, and what a timer calls.
FRONT = LOOPBACK + """/usr/sbin/cupsd; sleep 2
{play}
{play}
lpstat -c office; lpoptions -p office -l | grep -c ^JobPIN/
cupsdisable office-10_0_0_2; /usr/local/lib/zarvo-fleet/front/enable-members
ls /etc/systemd/system/zarvo-members.timer /etc/sysctl.d/zarvo-front.conf"""

# A CardDAV server with one recipient; then he moves, and somebody here tries to change him.
CONTACTS = LOOPBACK + """mkdir -p /etc/zarvo && cp /root/fleet/contacts/vdirsyncer.conf /etc/zarvo && echo x >/etc/zarvo/carddav-password
radicale --storage-filesystem-folder /root/dav --auth-type none --server-hosts localhost:5232 2>/root/radicale &
put() { python3 - "$1" <<'END'
import base64, sys, urllib.request
def send(method, path, body, kind):
    request = urllib.request.Request("http://localhost:5232/house/faxes/" + path, body.encode(), method=method)
    request.add_header("Authorization", "Basic " + base64.b64encode(b"house:x").decode())
    request.add_header("Content-Type", kind)
    try: urllib.request.urlopen(request)
    except urllib.error.HTTPError as error:
        if error.code not in (405, 409): raise
send("MKCOL", "", '<mkcol xmlns="DAV:" xmlns:C="urn:ietf:params:xml:ns:carddav"><set><prop><resourcetype><collection/>'
     '<C:addressbook/></resourcetype></prop></set></mkcol>', "text/xml")
send("PUT", "ada.vcf", "BEGIN:VCARD\\r\\nVERSION:3.0\\r\\nUID:ada\\r\\nFN:Ada\\r\\nN:;Ada;;;\\r\\n"
     f"TEL;TYPE=WORK,FAX:{sys.argv[1]}\\r\\nEND:VCARD\\r\\n", "text/vcard")
END
}
sync() { umask 022; vdirsyncer -c /etc/zarvo/vdirsyncer.conf "$@"; }
sleep 3; put 5550100
yes | sync discover >/dev/null; sync sync
zarvo recipient list
zarvo recipient edit ada --fax 1 || echo "refused: $?"
put 5550199; sync sync; zarvo recipient list
"""


# The alerts that come with it, tried by Prometheus' own tool.
ALERTS = """apt-get install -y -qq --no-install-recommends prometheus >/dev/null
sed s:ALERTS]:/root/fleet/figures/alerts.yml]: /root/alerts_test.yml >/root/alerts.yml
promtool check rules /root/fleet/figures/alerts.yml; promtool test rules /root/alerts.yml"""
# On the machine where the house's store is kept; afterwards it has none, until the role brings it.
PACK = """set -e
apt-get install -y -qq --no-install-recommends {packages} >/dev/null
zarvo watermark add-text HOUSE
cd /root && zarvo store pack --name house-store --version 8 --maintainer 'Ada <ada@example.org>' >&2
rm -r /var/lib/Zarvo
{sign}
apt-get purge -y -qq house-store zarvo-filter zarvo-tools >/dev/null; rm /etc/apt/sources.list.d/house.sources"""
# Sent by a signed repository, as the documents tell: taken from the house, and in no other way.
SIGN = """apt-get install -y -qq --no-install-recommends reprepro gnupg >/dev/null
export GNUPGHOME=/root/keys; install -d -m 700 $GNUPGHOME
install -D -m 644 /root/fleet/stores/distributions /srv/house/conf/distributions
gpg --batch --quiet --passphrase '' --quick-generate-key 'House stores <stores@example.org>' rsa4096 sign never
reprepro -b /srv/house includedeb house /root/house-store_8_all.deb >&2
gpg --export stores@example.org >/root/house.gpg
install -D -m 644 /root/house.gpg /etc/apt/keyrings/house.gpg
sed s,https://stores.example,file:/srv, /root/fleet/stores/house.sources >/etc/apt/sources.list.d/house.sources
lists="-o Dir::Etc::sourcelist=/etc/apt/sources.list.d/house.sources -o Dir::Etc::sourceparts=- -o APT::Update::Error-Mode=any"
# What apt has of the list before is not kept: it would hide what is wrong with the next.
try() {{ rm -rf /var/lib/apt/lists/*house*
  if apt-get $lists update && apt-get $lists install -y house-store; then said=taken; else said=refused; fi >&2
  echo "$1: $said, $(zarvo watermark list | grep -c HOUSE) there"
}}
cp -r /srv/house /srv/right
anew() {{ rm -r /srv/house; cp -r /srv/right /srv/house; cd /srv/house/dists/house; }}
printf x >>"$(find /srv/house/pool -name '*.deb')"; try "another package"
anew; sed -i s/^Description:.*/Description:x/ main/*/Packages; rm main/*/Packages.gz; try "another list"
anew; sed -i s/^Codename:.*/Codename:\\ House/ InRelease; rm Release*; try "another release"
anew; rm InRelease Release.gpg; try "no signature"
anew; try "of the house"
"""


def changes(text):
    """The numbers of changed and failed tasks of each run of the playbook."""
    return [(int(changed), int(failed)) for changed, failed in
            re.findall(r"changed=(\d+)\s+unreachable=\d+\s+failed=(\d+)", text)]


def run(system, command, own_network=False):
    words = system.command("sh", "-c", command)
    done = subprocess.run([*(["unshare", "--net"] if own_network else []), *words],
                          capture_output=True, text=True, errors="replace", timeout=900)
    if done.returncode:
        sys.exit(f"{command}\n{done.stdout[-4000:]}{done.stderr[-2000:]}")
    return done.stdout


def main():
    if os.geteuid() != 0 or not shutil.which("debootstrap"):
        sys.exit("a bare system is made by root, with debootstrap")
    packages = sorted(pathlib.Path(sys.argv[1]).resolve().glob("*.deb"))
    packages = [package for package in packages if re.match("zarvo-(filter|tools)_", package.name)]
    with contextlib.ExitStack() as stack:
        scratch = stack.enter_context(tempfile.TemporaryDirectory(prefix="zarvo-debian-"))
        system = BareDebian(scratch, own_release())
        system.make()
        run(system, "apt-get update -qq && apt-get install -y -qq --no-install-recommends "
            "ansible-core python3-apt radicale vdirsyncer")
        shutil.copytree(SOURCE / "fleet", system.root / "root/fleet")
        for package in packages:
            shutil.copy(package, system.root / "root")
        names = str([f"/root/{package.name}" for package in packages]).replace("'", '"')
        front = BareDebian(scratch + "-front", own_release())
        stack.callback(shutil.rmtree, front.root, ignore_errors=True)
        subprocess.run(["cp", "-a", scratch, front.root], check=True)
        signed = run(front, PACK.format(
            packages=" ".join(f"/root/{package.name}" for package in packages), sign=SIGN.format()))
        shutil.copy(front.root / STORE[1:], system.root / STORE[1:])
        system.write("root/inventory", INVENTORY.format(packages=names, stores=f'["{STORE}"]', servers="localhost",
                                                        fronts=""))
        front.write("root/inventory", INVENTORY.format(packages=names, stores="[]", servers="10.0.0.1\n10.0.0.2",
                                                       fronts="localhost"))
        first = run(system, PLAY.format("servers", NO_QUEUES))
        again = run(system, PLAY.format("servers", NO_QUEUES))
        told = run(system, USE.format(play=PLAY.format("servers", "")), own_network=True)
        contacts = run(system, CONTACTS, own_network=True)
        shutil.copy(SOURCE / "tests/data/alerts_test.yml", system.root / "root")
        run(system, f"set -e\n{ALERTS}")
        front_made = [run(front, PLAY.format("fronts", NO_QUEUES)) for _ in range(2)]
        front_told = run(front, FRONT.format(play=PLAY.format("fronts", "")), own_network=True)
    print("the alerts fire as they should")
    assert signed.splitlines() == [
        *(f"{other}: refused, 0 there" for other in ("another package", "another list", "another release",
                                                     "no signature")), "of the house: taken, 1 there"], signed
    print("a store came by a signed repository, and by no other")
    front_changes = [changes(text)[0] for text in front_made] + changes(front_told)
    assert front_changes[0][0] > 5 and front_changes[1:] == [(0, 0), (1, 0), (0, 0)], front_changes
    assert front_told.split()[-11:] == [
        "members", "of", "class", "office:", "office-10_0_0_1", "office-10_0_0_2", "1", "enabled", "office-10_0_0_2",
        "/etc/sysctl.d/zarvo-front.conf", "/etc/systemd/system/zarvo-members.timer"], front_told
    print("another one became a front, and again nothing was left to do")
    made, unchanged, (queues, unchanged_queues) = changes(first), changes(again), changes(told)
    print(f"bare system: {made[0][0]} changes, again {unchanged[0][0]}; queues: {queues[0]}, again "
          f"{unchanged_queues[0]}")
    assert made[0][0] > 5 and unchanged == [(0, 0)] and queues == (1, 0) and unchanged_queues == (0, 0), told
    assert "OID_VAL_JOB_TYPE_SECURE_PRINT" in told, "the printer got no job"
    assert re.search(r"^ *\d+ +HOUSE ", told, re.M), told
    print("a job was printed through it")
    lines = [line for line in contacts.splitlines() if line.startswith(("ada ", "refused"))]
    assert lines == ["ada  Ada  fax 5550100  mailbox -  shared in faxes", "refused: 2",
                     "ada  Ada  fax 5550199  mailbox -  shared in faxes"], contacts
    print("recipients came from a CardDAV server, and stayed as they are there")


if __name__ == "__main__":
    main()
