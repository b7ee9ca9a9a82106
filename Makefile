# The two commands of the project: `make demo` and `make test`.
# Both install what is missing (tools/install-deps.sh), configure and build first.

JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: all deps configure build demo test bench asan release install clean

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

install: build
	@cmake --install build/dev --prefix $(or $(PREFIX),build/install)

clean:
	@rm -rf build
