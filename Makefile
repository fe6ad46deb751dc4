# A thin wrapper over CMake. `make run` and `make test` install what is
# missing (through apt), build, and run.
BUILD ?= build
FUZZ_BUILD ?= build-fuzz
BENCH_BUILD ?= build-bench
WEB_BUILD ?= build-web
WEB_PORT ?= 8080
JOBS ?= $(shell nproc)
FUZZ_SECONDS ?= 20
FUZZ_RUNS ?= 1000000
FUZZ_CORPUS ?= fuzz-corpus
CMAKE_FLAGS ?=

.PHONY: all deps configure build run test fuzz fuzz-build fuzz-models bench screenshots package web \
  web-deps test-web serve-web clean

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVOREL_WERROR=ON $(CMAKE_FLAGS) > /dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: configure
	@cmake --build $(BUILD) -j $(JOBS) --target vorel
	@scripts/run-desktop.sh $(BUILD)

test: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS)
	@$(MAKE) --no-print-directory test-web
	@$(MAKE) --no-print-directory fuzz

# The command line as WebAssembly for node (Debian's emscripten; its link step
# needs Debian's acorn): $(WEB_BUILD)/vorel-report.js and .wasm.
web: deps
	@NODE_PATH=/usr/share/nodejs emcmake cmake -S . -B $(WEB_BUILD) -G Ninja \
	  -DCMAKE_BUILD_TYPE=Release -DVOREL_GUI=OFF -DVOREL_TESTS=OFF -DVOREL_WEB=ON \
	  -DVOREL_WERROR=ON > /dev/null
	@NODE_PATH=/usr/share/nodejs cmake --build $(WEB_BUILD) -j $(JOBS)

# The browser tests' driver, playwright-core from npm, pointed at Debian's
# chromium (it downloads no browser).
web-deps: deps
	@[ -d web/node_modules/playwright-core ] || npm ci --prefix web --no-audit --no-fund --silent

# Every example of every model through the WebAssembly command line against
# the golden texts of the native one; the site in headless chromium.
test-web: web web-deps
	@node --test web/tests/

# The site on http://127.0.0.1:$(WEB_PORT)/ until stopped.
serve-web: web
	@node web/serve.mjs $(WEB_BUILD)/site $(WEB_PORT)

# Optimised, so the sanitizers see ten times more inputs in the same time.
fuzz-build: configure
	@cmake --build $(BUILD) -j $(JOBS) --target vorel-report
	@cmake -S . -B $(FUZZ_BUILD) -G Ninja -DCMAKE_CXX_COMPILER=clang++ \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVOREL_GUI=OFF -DVOREL_TESTS=OFF -DVOREL_FUZZ=ON \
	  $(CMAKE_FLAGS) > /dev/null
	@cmake --build $(FUZZ_BUILD) -j $(JOBS) --target fuzz_problem_file fuzz_models

fuzz: fuzz-build
	@scripts/run-fuzz.sh $(FUZZ_BUILD)/fuzz/fuzz_problem_file 5 $(BUILD)/vorel-report
	@scripts/run-fuzz.sh $(FUZZ_BUILD)/fuzz/fuzz_models $(FUZZ_SECONDS) $(BUILD)/vorel-report models

# FUZZ_RUNS inputs for each model (or only FUZZ_MODELS), going on from the corpus in FUZZ_CORPUS.
fuzz-models: fuzz-build
	@scripts/fuzz-every-model.sh $(FUZZ_BUILD)/fuzz/fuzz_models $(FUZZ_RUNS) $(BUILD)/vorel-report \
	  $(FUZZ_CORPUS) $(FUZZ_MODELS)

bench: deps
	@cmake -S . -B $(BENCH_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release -DVOREL_GUI=OFF \
	  -DVOREL_TESTS=OFF -DVOREL_BENCH=ON > /dev/null
	@cmake --build $(BENCH_BUILD) -j $(JOBS) --target vorel_bench
	@$(BENCH_BUILD)/bench/vorel_bench

# A Debian package of both programs, the help and the examples, checked by
# lintian; its desktop entry and software-centre listing, as installed, checked
# by desktop-file-validate and appstreamcli (offline).
package: build
	@cd $(BUILD) && cpack -G DEB > /dev/null && ls vorel_*.deb
	@rm -rf $(BUILD)/deb-contents && dpkg-deb -x $(BUILD)/vorel_*.deb $(BUILD)/deb-contents
	@desktop-file-validate $(BUILD)/deb-contents/usr/share/applications/vorel.desktop
	@appstreamcli validate --no-net --pedantic \
	  $(BUILD)/deb-contents/usr/share/metainfo/org.example.vorel.metainfo.xml
	@lintian --fail-on error $(BUILD)/vorel_*.deb

screenshots: build web web-deps
	@scripts/screenshots.sh $(BUILD)
	@node web/tests/screenshots.mjs screenshots/web
	@node web/tests/chart_pictures.mjs screenshots/web

clean:
	rm -rf $(BUILD) $(FUZZ_BUILD) $(BENCH_BUILD) $(WEB_BUILD)
