# The two commands of the project: `make demo` and `make test`.
# Both install what is missing (tools/install-deps.sh), configure and build first.

JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: all deps configure build demo test bench asan tsan release install clean format format-check tidy

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
