# The front door; everything else is CMake (see CMakePresets.json).
.PHONY: corpus build setup demo test bench pictures screenshots install clean format check-format lint asan asan-build fuzz load fleet test-fleet deb test-packages test-debian
JOBS ?= $(shell nproc)
# Tests wait for spoolers and time limits much of the time.
TESTS = $(shell expr $(JOBS) + 1)
SOURCES = $(shell git ls-files '*.cpp' '*.h')

build:
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS)

setup:
	@Tools/setup-debian

# Builds the filter alone, and fast: it runs once.
demo: setup
	@cmake --preset demo >/dev/null
	@cmake --build --preset demo -j $(JOBS)
	@ZARVO_BIN=build-demo/bin ZARVO_SOURCE=. python3 Tools/demo.py demo-output

test: setup
	@$(MAKE) --no-print-directory build
	@ctest --preset release -j $(TESTS)

bench: build
	@cmake --build --preset release --target bench

install: build
	@cmake --install build --strip

# Debian packages in build/deb/.
deb: setup
	@Tools/build-deb build/deb

# Installs the packages on a bare Debian in a folder of its own and prints.
test-packages: deb
	@python3 tests/package/run.py build/deb

# All of it on every Debian and machine that is supported; SYSTEMS picks some: 12 13 arm64 s390x.
test-debian: setup
	@Tools/test-debian $(SYSTEMS)

# Documents of a hundred programs, printed in every mode and compared with their plain pages.
# CORPUS="--only 'gri*' --modes plain,booklet --jobs 1" prints a part of them.
corpus: setup
	@$(MAKE) --no-print-directory build
	@nice python3 tests/corpus/run.py --install --build build $(CORPUS)

# The tests once more, every program with the address and undefined-behaviour sanitizers. Tests leave
# out by themselves what the sanitizers do and the programs forbid: looking into their own process.
asan: asan-build
	@ctest --preset asan -j $(TESTS)

asan-build:
	@cmake --preset asan >/dev/null
	@cmake --build --preset asan -j $(JOBS)

# The pictures in docs/, drawn by what has been built.
pictures: build
	@ZARVO_BIN=build/bin python3 Tools/sample-fax-cover.py docs/fax-cover.png
	@ZARVO_BIN=build/bin python3 Tools/sample-printing.py docs/printing-watermarks.png \
	  docs/printing-booklet.png
	@ZARVO_BIN=build/bin python3 Tools/sample-preview.py build/ppd/zarvo.ppd docs/preview-booklet.png
	@ZARVO_BIN=build/bin python3 Tools/sample-house-tickets.py build/ppd/zarvo.ppd docs
	@ZARVO_BIN=build/bin python3 Tools/sample-desk.py build/ppd/zarvo.ppd docs
	@ZARVO_BIN=build/bin ZARVO_SOURCE=. python3 Tools/demo.py demo-output >/dev/null
	@cp demo-output/page-1.png docs/demo.png

# The print dialogs of GTK 3 and 4 and Qt 5 and 6 with our PPD, in each of its languages, as pictures in
# build/test-output/dialogs. DIALOGS="gtk3-de qt6-ja" takes some of them.
screenshots:
	@Tools/setup-debian dialogs
	@$(MAKE) --no-print-directory build
	@python3 tests/dialogs/run.py build $(DIALOGS)

# Every decoder against made-up input, each for that many seconds of processor time.
FUZZ_SECONDS ?= 60
fuzz: setup
	@cmake --preset fuzz >/dev/null
	@cmake --build --preset fuzz -j $(JOBS)
	@python3 fuzz/run.py --seconds $(FUZZ_SECONDS) build-fuzz

# Hundreds of jobs through a spooler and thousands of processes at once.
load: build
	@cd tests/system && ZARVO_LOAD=full ZARVO_BIN=$(CURDIR)/build/bin ZARVO_SOURCE=$(CURDIR) \
	  python3 test_load.py

# Another version of the formatter would write the tree in another way.
FORMATTER = clang-format-14
format:
	$(FORMATTER) -i $(SOURCES)

check-format:
	@if command -v $(FORMATTER) >/dev/null; then $(FORMATTER) --dry-run -Werror $(SOURCES); \
	else echo "check-format: not checked, $(FORMATTER) is not installed"; fi

# What reads the bytes of anybody who may print, against .clang-tidy; LINTED="FILE ..." looks at others.
# It reads how "build" compiles each file.
LINTER = clang-tidy-14
LINTED = $(shell git ls-files Platform StandardTicket CUPSFilter/Options CUPSFilter/CopyPass CUPSFilter/Booklet | grep '[.]cpp$$')
lint:
	@if command -v $(LINTER) >/dev/null; then cmake --preset release >/dev/null && \
	  echo $(LINTED) | xargs -n 4 -P $(JOBS) $(LINTER) -quiet -p build 2>/dev/null; \
	else echo "lint: not checked, $(LINTER) is not installed"; fi

# Three servers behind a front, each a machine of its own on this one: prints through them and shows where
# the jobs are. FLEET='--jobs 500 --fault "server2 at 50 for 10"' takes its power from one; see docs/fleet.md.
fleet: setup
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS) --target zarvofilter zarvodraw zarvo ppd
	@ZARVO_BIN=build/bin python3 fleet/fleet.py $(FLEET)

# A bare Debian, made a print server by Ansible; it fetches some hundred megabytes of packages for that alone.
# ("make test" tries three servers, one of which loses its power.)
test-fleet: deb
	@python3 tests/package/role.py build/deb

clean:
	@# What test-debian leaves belongs to root.
	@[ -O build/debian -o ! -d build/debian ] || sudo rm -rf build/debian
	rm -rf build build-demo build-debug build-asan build-fuzz demo-output
