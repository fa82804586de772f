// The document alone, beside another reader of such files: reading a file and
// looking up all of its entries in the order of the file.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include <unistd.h>

// The peer takes bytes as they are, which is its fastest way.
#define SI_IMPLEMENTATION
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include "lintavo/ini/CIniFile.h"

#include "Rows.h"

namespace lintavo::bench {
namespace {

using Work = std::function<void()>;

constexpr int kEntriesPerSection = 20;

struct Section {
  std::string name;
  std::vector<std::string> keys;
};

// A file of about the given size, which goes with its last owner.
class IniFile {
 public:
  explicit IniFile(std::size_t bytes) {
    path_ = (std::filesystem::temp_directory_path() /
             ("lintavo_bench_" + std::to_string(::getpid()) + "_" + std::to_string(bytes) + ".ini"))
                .string();
    std::string text;
    while (text.size() < bytes) AddSection(text);
    std::ofstream(path_, std::ios::binary) << text;
  }
  IniFile(const IniFile&) = delete;
  IniFile& operator=(const IniFile&) = delete;
  ~IniFile() { std::remove(path_.c_str()); }

  const std::string& Path() const { return path_; }
  const std::vector<Section>& Sections() const { return sections_; }

 private:
  void AddSection(std::string& text) {
    Section section{"Fluegel" + std::to_string(sections_.size() + 1), {}};
    text += "[" + section.name + "]\n";
    for (int i = 1; i <= kEntriesPerSection; ++i) {
      section.keys.push_back("Zusatz" + std::to_string(i));
      text += section.keys.back() + "=" + std::to_string(i) + ",7.8,6.8,1,3,1,3,0.5\n";
    }
    text += "\n";
    sections_.push_back(std::move(section));
  }

  std::string path_;
  std::vector<Section> sections_;
};

Work Ours(std::size_t bytes) {
  auto file = std::make_shared<IniFile>(bytes);
  struct Names {
    CString section;
    std::vector<CString> keys;
  };
  std::vector<Names> names;
  for (const Section& section : file->Sections()) {
    names.push_back({section.name.c_str(), {}});
    for (const std::string& key : section.keys) names.back().keys.push_back(key.c_str());
  }
  return [file, names = std::move(names), path = CString(file->Path())] {
    CIniFile document;
    Require(document.Read(path), "read");
    CString value;
    for (const Names& section : names) {
      for (const CString& key : section.keys) {
        Require(document.GetString(section.section, key, value), "entry");
      }
    }
  };
}

Work Peer(std::size_t bytes) {
  return [file = std::make_shared<IniFile>(bytes)] {
    CSimpleIniA document;
    Require(document.LoadFile(file->Path().c_str()) == SI_OK, "read");
    std::string value;
    for (const Section& section : file->Sections()) {
      for (const std::string& key : section.keys) {
        const char* text = document.GetValue(section.name.c_str(), key.c_str());
        Require(text != nullptr, "entry");
        value = text;
      }
    }
  };
}

}  // namespace

void AddIniRows(std::vector<Row>& rows) {
  constexpr std::size_t kKilobyte = 1024;
  for (const auto& [label, bytes] :
       {std::pair("10 KB", 10 * kKilobyte), std::pair("1 MB", 1024 * kKilobyte)}) {
    rows.push_back({std::string("INI document/") + label, [b = bytes] { return Ours(b); }});
    rows.push_back({std::string("reference: peer INI/") + label, [b = bytes] { return Peer(b); }});
  }
}

}  // namespace lintavo::bench
