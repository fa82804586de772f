#include "Speicherknappheit.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include <link.h>

// The sanitizers bring a malloc of their own.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define EIGENES_MALLOC
extern "C" void* __libc_malloc(std::size_t size) noexcept;
#endif

namespace {

std::atomic<long> lebende{0};

struct Lage {
  long uebrig = 0;  // until the one that fails; 0: none will
  bool dauerhaft = false;
  bool eingetreten = false;
};

thread_local Lage lage;

struct Bereich {
  std::uintptr_t von = 0;
  std::uintptr_t bis = 0;
};

// Where the code of the clipping library lies.
Bereich Polyclipping() {
  Bereich bereich;
  ::dl_iterate_phdr(
      [](dl_phdr_info* info, std::size_t, void* ziel) {
        if (std::strstr(info->dlpi_name, "polyclipping") == nullptr) return 0;
        for (int i = 0; i < info->dlpi_phnum; ++i) {
          const auto& teil = info->dlpi_phdr[i];
          if (teil.p_type != PT_LOAD || (teil.p_flags & PF_X) == 0) continue;
          const std::uintptr_t von = info->dlpi_addr + teil.p_vaddr;
          *static_cast<Bereich*>(ziel) = {von, von + teil.p_memsz};
        }
        return 1;
      },
      &bereich);
  return bereich;
}

const Bereich polyclipping = Polyclipping();

bool Verweigern(const void* rufer) {
  if (lage.uebrig == 0 && !(lage.eingetreten && lage.dauerhaft)) return false;
  const auto ort = reinterpret_cast<std::uintptr_t>(rufer);
  if (ort >= polyclipping.von && ort < polyclipping.bis) return false;
  if (lage.uebrig == 0 || --lage.uebrig == 0) lage.eingetreten = true;
  return lage.uebrig == 0;
}

void* Hole(std::size_t size) {
#ifdef EIGENES_MALLOC
  return __libc_malloc(size);
#else
  return std::malloc(size);
#endif
}

void* Neu(std::size_t size, const void* rufer) {
  void* block = Verweigern(rufer) ? nullptr : Hole(size > 0 ? size : 1);
  if (block != nullptr) ++lebende;
  return block;
}

void* NeuOderWirf(std::size_t size, const void* rufer) {
  void* block = Neu(size, rufer);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void Loesche(void* block) {
  if (block != nullptr) --lebende;
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
  return NeuOderWirf(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size) {
  return NeuOderWirf(size, __builtin_return_address(0));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Neu(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Neu(size, __builtin_return_address(0));
}
void operator delete(void* block) noexcept {
  Loesche(block);
}
void operator delete[](void* block) noexcept {
  Loesche(block);
}
void operator delete(void* block, std::size_t) noexcept {
  Loesche(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  Loesche(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  Loesche(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  Loesche(block);
}

#ifdef EIGENES_MALLOC
extern "C" void* malloc(std::size_t size) {
  if (!Verweigern(nullptr)) return __libc_malloc(size);
  errno = ENOMEM;
  return nullptr;
}
#endif

namespace lintavo::test {

Speicherknappheit::Speicherknappheit(long n, bool dauerhaft) {
  lage = {n, dauerhaft, false};
}

Speicherknappheit::~Speicherknappheit() {
  lage = {};
}

bool Speicherknappheit::IstEingetreten() const {
  return lage.eingetreten;
}

long LebendeBloecke() {
  return lebende;
}

}  // namespace lintavo::test
