# The two commands a new machine needs: `make demo` and `make test`. Both install missing
# Debian packages first (scripts/install-deps.sh).
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
CMAKE_ARGS ?=
export CCACHE_BASEDIR := $(CURDIR)
export CCACHE_NOHASHDIR := 1

.PHONY: all deps configure build test demo bench clean format package

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DTOVRA_WERROR=ON $(CMAKE_ARGS)

build: configure
	@cmake --build $(BUILD_DIR) --parallel $$(nproc)

test: deps
	@scripts/run-tests.sh

demo: build
	@scripts/demo.sh $(BUILD_DIR)

# Every benchmark next to its plain-Qt floor, one table (bench/README.md). Not part of `make test`.
bench: build
	@bench/run.sh $(BUILD_DIR)

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR) build-asan build-fuzz

# The Debian package: build/tovra_<version>-<build>_<arch>.deb (only what it installs is built).
package: configure
	@cmake --build $(BUILD_DIR) --parallel $$(nproc) --target tovra tovra-ctl tovra_package_data
	@cd $(BUILD_DIR) && cpack -G DEB
