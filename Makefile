# The two commands of the project: `make demo` and `make test`.
# Both install what is missing (tools/install-deps.sh), configure and build first.

JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: all deps configure build demo test stress fault fault-run bench asan tsan release install clean format format-check tidy

all: build

deps:
	@./tools/install-deps.sh

configure: deps
	@cmake --preset dev > /dev/null

build: configure
	@cmake --build build/dev -j $(JOBS)

demo: build
	@./tools/run-demo.sh build/dev/Demo/mvtimeline-demo

test: build
	@cd build/dev && ctest --output-on-failure -j $(JOBS)

# The random-command test run long: a million commands (MV_RANDOM_STEPS) from a new seed each time
# (MV_RANDOM_SEED, printed first). A failure prints the seed of its round and a short sequence to replay.
stress: build
	@MV_RANDOM_SEED=$${MV_RANDOM_SEED:-$$(date +%s)} MV_RANDOM_STEPS=$${MV_RANDOM_STEPS:-1000000} \
		./build/dev/Tests/tst_MvRandomCommands everyCheckHoldsOverARandomRun

# Proves that the random-command test can fail: it runs over an in-memory model with a deliberate
# fault planted (FAULT, see cmake/MvPlantFault.cmake), built apart in build/fault-<FAULT>. This
# target succeeds when the run fails, as it must.
FAULT ?= undo-forgets-field
fault: deps
	@cmake --preset dev -B build/fault-$(FAULT) -DMV_PLANT_FAULT=$(FAULT) -DMV_BUILD_DEMO=OFF -DMV_BUILD_BENCH=OFF > /dev/null
	@cmake --build build/fault-$(FAULT) -j $(JOBS) --target tst_MvRandomCommands
	@if ./build/fault-$(FAULT)/Tests/tst_MvRandomCommands everyCheckHoldsOverARandomRun; then \
		echo "The planted fault $(FAULT) went unnoticed."; exit 1; \
	else echo "The planted fault $(FAULT) was found (the failure above is expected)."; fi

# How much the suite is worth: plants each fault of tools/fault-run.py, one at a time, in a copy of
# the sources (build/fault-run) and reports which the suite catches. FAULT_TESTS narrows the suite
# (a ctest -R pattern), FAULT_ONLY the faults (a name prefix).
fault-run: deps
	@./tools/fault-run.py $(if $(FAULT_TESTS),--tests '$(FAULT_TESTS)') $(if $(FAULT_ONLY),--only '$(FAULT_ONLY)')

bench: deps
	@cmake --preset release > /dev/null
	@cmake --build build/release -j $(JOBS) --target mvtimeline-bench
	@./build/release/Bench/mvtimeline-bench

asan: deps
	@cmake --preset asan > /dev/null
	@cmake --build build/asan -j $(JOBS)
	@cd build/asan && LSAN_OPTIONS=suppressions=$(CURDIR)/tools/lsan.supp ctest --output-on-failure -j $(JOBS)

# Qt is not built with the thread sanitizer: tools/tsan.supp names the Qt internals it cannot see
# into, never this project's code.
tsan: deps
	@cmake --preset tsan > /dev/null
	@cmake --build build/tsan -j $(JOBS)
	@cd build/tsan && TSAN_OPTIONS="suppressions=$(CURDIR)/tools/tsan.supp second_deadlock_stack=1" ctest --output-on-failure -j $(JOBS)

install: build
	@cmake --install build/dev --prefix $(or $(PREFIX),build/install)

format: deps
	@./tools/format.sh fix

format-check: deps
	@./tools/format.sh check

# clang-tidy over the library, its siblings and the demo, with the checks of .clang-tidy.
tidy: configure
	@run-clang-tidy -quiet -p build/dev -j $(JOBS) '$(CURDIR)/(Src|Demo)/.*\.cpp' > build/tidy.log 2>&1 \
		|| (grep -E 'error:|warning:' build/tidy.log | grep -v 'warnings generated'; exit 1)
	@echo "clang-tidy: no findings"

clean:
	@rm -rf build
