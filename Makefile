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

.PHONY: run test test-tsan docs bench package deps bench-deps package-deps docs-deps configure build build-asan build-tsan clean

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

docs-deps: deps
	@missing=$$(for p in $(DOCS_DEPS); do dpkg -s $$p >/dev/null 2>&1 || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  echo "installing:$$missing"; \
	  apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $$missing; \
	fi

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(TSAN_BUILD) $(BENCH_BUILD)
