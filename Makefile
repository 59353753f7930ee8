# The two commands of the README, plus benchmarks. Each installs what is
# missing on a Debian machine first (apt-get, as root).
JOBS        ?= $(shell nproc)
BUILD       ?= build
ASAN_BUILD  ?= build-asan
TSAN_BUILD  ?= build-tsan
BENCH_BUILD ?= build-bench
DEPS        := liblog4cpp5-dev libboost-dev libgtest-dev libgmock-dev libbenchmark-dev cmake g++ pkg-config make
BENCH_DEPS  := libmodpbase64-dev libssl-dev libinih-dev
PACKAGE_DEPS := dpkg-dev file
DOCS_DEPS   := doxygen
# Windows: cross compilers, Wine, and what building log4cpp and GoogleTest needs.
WINDOWS_DEPS := g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 autoconf automake libtool \
                patch googletest libboost-dev cmake make pkg-config ccache
# Cross-built dependencies and the log4cpp download live outside the tree.
WIN_DEPS_PREFIX ?= $(HOME)/.cache/tovuutil-windows
WIN_ARCHS   ?= x86_64 i686
WIN_BUILD   ?= build-win
LOG4CPP_TARBALL := $(WIN_DEPS_PREFIX)/log4cpp-1.1.4.tar.gz

.PHONY: run test test-tsan docs bench package deps bench-deps package-deps docs-deps configure build build-asan build-tsan clean \
        windows windows-build windows-deps windows-log4cpp-source windows-tools windows-package

# Only the library and the tool: the tests are built by `make test`.
run: configure
	cmake --build $(BUILD) -j$(JOBS) --target tovu
	./$(BUILD)/tools/tovu/tovu info

# The API reference (build/docs/html); fails on undocumented public declarations.
docs: docs-deps configure
	cmake --build $(BUILD) --target docs

test: build build-asan
	cd $(BUILD) && ctest --output-on-failure -j$(JOBS)
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j$(JOBS)
	$(MAKE) test-tsan

# The threading tests under ThreadSanitizer: the library and those tests only.
# Any report fails the run (halt_on_error); setarch -R keeps the sanitizer's
# memory layout valid on kernels with high address randomisation.
test-tsan: build-tsan
	cd $(TSAN_BUILD) && TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1" \
	  setarch $$(uname -m) -R ctest --output-on-failure -j$(JOBS)

bench: bench-deps
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DTOVU_BUILD_TESTS=OFF -DTOVU_BUILD_BENCH=ON
	cmake --build $(BENCH_BUILD) -j$(JOBS)
	cmake --build $(BENCH_BUILD) --target run-benchmarks

# A Debian package of the library, headers, CMake and pkg-config files and tovu.
package: package-deps build docs
	cd $(BUILD) && cpack -G DEB

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: configure
	cmake --build $(BUILD) -j$(JOBS)

build-asan: deps
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DTOVU_SANITIZE=ON
	cmake --build $(ASAN_BUILD) -j$(JOBS)

build-tsan: deps
	cmake -S . -B $(TSAN_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTOVU_TSAN=ON -DTOVU_TEST_FOLDERS=threads
	cmake --build $(TSAN_BUILD) -j$(JOBS) --target threads_stress_test threads_targeted_test

deps:
	@missing=$$(for p in $(DEPS); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $$missing; \
	fi

bench-deps: deps
	@missing=$$(for p in $(BENCH_DEPS); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $$missing; \
	fi

package-deps: deps
	@missing=$$(for p in $(PACKAGE_DEPS); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $$missing; \
	fi

DOCS_DEPS   := doxygen
# Cross-builds tovuutil.dll, tovu.exe and the tests for each of WIN_ARCHS, and
# runs the tests under Wine (the i686 ones only where 32-bit Wine is installed).
windows: windows-build
	@status=0; for arch in $(WIN_ARCHS); do \
	  windows/run-tests.sh $(WIN_BUILD)-$$arch $$arch $(WIN_DEPS_PREFIX)/wine-$$arch -j$(JOBS) || status=1; \
	done; exit $$status

windows-build: windows-deps
	@for arch in $(WIN_ARCHS); do \
	  cmake -S . -B $(WIN_BUILD)-$$arch -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/mingw-w64.cmake -DTOVU_MINGW_ARCH=$$arch \
	    -DTOVU_DEPS_PREFIX=$(WIN_DEPS_PREFIX)/$$arch -DCMAKE_CXX_COMPILER_LAUNCHER=ccache && \
	  cmake --build $(WIN_BUILD)-$$arch -j$(JOBS) || exit 1; \
	done

# A ZIP of the x86_64 DLL, its import library, the runtime DLLs, headers and
# CMake package files; the consumer test builds against it and runs under Wine.
windows-package: windows-build
	cd $(WIN_BUILD)-x86_64 && cpack -G ZIP
	tests/consumer/windows.sh $(WIN_BUILD)-x86_64 tests/consumer/project $(WIN_DEPS_PREFIX)/x86_64 $(WIN_DEPS_PREFIX)/wine-x86_64

windows-deps: windows-tools windows-log4cpp-source
	@for arch in $(WIN_ARCHS); do \
	  JOBS=$(JOBS) windows/build-deps.sh $(WIN_DEPS_PREFIX) $$arch $(LOG4CPP_TARBALL) || exit 1; \
	done

# Exit status 2 of the fetch: the source cannot be obtained.
windows-log4cpp-source: windows-tools
	@mkdir -p $(WIN_DEPS_PREFIX)
	windows/fetch-log4cpp.sh $(LOG4CPP_TARBALL)

# Never enables a foreign architecture: an i386 index out of step with the
# mirror makes every later apt-get update fail.
windows-tools:
	@missing=$$(for p in $(WINDOWS_DEPS); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $$missing; \
	fi

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(BENCH_BUILD) $(WIN_BUILD)-x86_64 $(WIN_BUILD)-i686


.PHONY: run test test-tsan docs bench package deps bench-deps package-deps docs-deps configure build build-asan build-tsan clean \
        windows windows-build windows-deps windows-log4cpp-source windows-tools windows-package
