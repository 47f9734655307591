# The machines, and the CPU builds for them. One build folder holds the builds of one machine: the machine that builds, or
# with --toolchain cmake/machine.cmake -DQVPI_MACHINE=<machine> any other, whose programs then start in an emulator.
#
# Protection is of indirect jumps, with the hints of the instruction set that older CPUs pass over. Windows is a machine
# of its own, whose unions hold the CPU builds of the machine that its CPUs are. With wine's debugger a program that
# crashes would seem to succeed.
set(wine "env WINEPREFIX=${CMAKE_BINARY_DIR}/wine WINEDEBUG=-all WINEDLLOVERRIDES=winedbg.exe,mscoree,mshtml=d wine")

#            machine  processor  CPUs     Debian's  compiler target    protection                   programs start with
qvpi_machine(x86      x86_64     x86      amd64     x86_64-linux-gnu   -fcf-protection              "")
qvpi_machine(aarch64  aarch64    aarch64  arm64     aarch64-linux-gnu  -mbranch-protection=standard "qemu-aarch64 -L /usr/aarch64-linux-gnu")
qvpi_machine(wasm     wasm32     wasm     ""        wasm32-emscripten  ""                           node)
qvpi_machine(windows  AMD64      x86      ""        x86_64-w64-mingw32 ""                           "${wine}")

# i386 callers may keep the stack aligned to 4 bytes only, so g9 realigns it where a function needs more. clang has to be
# told that arguments on the stack are no better aligned either: it copies several of them by one vector.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  set(realign -mincoming-stack-boundary=2)
else()
  set(realign -mstackrealign -mstack-alignment=4)
endif()

# One row per CPU build, the lowest level of a machine first. Outputs lie in <build>/<code>/.
#
# Tests: "formulas" are all of them; "calls" are those that hold for every function alike, while the hash program compares
# all results with those of the builds that were tested against formulas. In an emulator all builds have calls alone.
#
#        code  machine  bits  runs with  tests     vector target  file     below the library folder in  name in the version record  flags
qvpi_cpu(g9    x86      32    avx        formulas  HWY_SSE4       qvpig9   .                            "qvpIP AVX (g9)"             -m32 -mavx -mfpmath=sse ${realign})
qvpi_cpu(v2    x86      64    sse4_2     calls     HWY_SSE4       qvpi     .                            "qvpIP SSE4.2 (v2)"          -march=x86-64-v2)
qvpi_cpu(v3    x86      64    avx2       formulas  HWY_AVX2       qvpi     glibc-hwcaps/x86-64-v3       "qvpIP AVX2 (v3)"            -march=x86-64-v3)
qvpi_cpu(v4    x86      64    avx512vl   calls     HWY_AVX3       qvpi     glibc-hwcaps/x86-64-v4       "qvpIP AVX-512 (v4)"         -march=x86-64-v4)
qvpi_cpu(n8    aarch64  64    asimd      formulas  HWY_NEON       qvpi     .                            "qvpIP NEON (n8)"            -march=armv8-a)
qvpi_cpu(w1    wasm     32    simd128    formulas  HWY_WASM       qvpi     .                            "qvpIP WebAssembly SIMD (w1)" -msimd128)

# One row per build that holds the code of several, whose levels follow, the lowest first, and chooses at load.
#
#          code machine  bits  runs with  tests     file     below the library folder in  levels
qvpi_union(any  x86      64    sse4_2     calls     qvpi     qvpi-any                     v2 v3 v4)
qvpi_union(win  windows  64    sse4_2     calls     qvpi     .                            v2 v3 v4)
