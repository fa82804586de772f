// What a host does with one window.
#include <memory>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Scene.h"

#include "Rows.h"
#include "Windows.h"

namespace lintavo::bench {
namespace {

using Work = std::function<void()>;

Work ParseMemory(const std::string& name) {
  return [text = FileText(ExamplePath(name))] {
    CIniFile document = Document(text);
    CMFenster window;
    Require(window.ReadFromBuffer(document), "parse");
  };
}

Work ParseFile(const std::string& name) {
  return [path = CString(ExamplePath(name))] {
    CMFenster window;
    Require(window.ReadFromFile(path), "parse");
  };
}

Work Calculate(const std::string& name) {
  return [window = std::make_shared<CFeApi>(Example(name))] {
    Require(window->Berechne(), "calculate");
  };
}

// Two sizes in turn, so that every round moves axes and rebuilds all: a handle
// that is dragged.
class Fitting {
 public:
  explicit Fitting(const std::string& name)
      : window_(Example(name)),
        width_(window_.GetFensterBreite()),
        height_(window_.GetFensterHoehe()) {}

  void operator()() {
    factor_ = 2.1 - factor_;
    Require(window_.SetBreiteHoehe({}, width_ * factor_, height_ * factor_) && window_.Berechne(),
            "fit");
  }

 private:
  CFeApi window_;
  double width_;
  double height_;
  double factor_ = 1.0;
};

void FetchOutlines(const CFeApi& window) {
  CFeApiPolygon polygon;
  double length;
  double start;
  double end;
  for (const long kind : {1L, 2L}) {
    for (long i = 0; i < window.GetAnzahlRahmenBauteile(kind); ++i) {
      Keep(window.GetRahmenBauteilUmriss(kind, i, -1, polygon, length, start, end));
    }
  }
  for (long sash = 0; sash < window.GetAnzahlFluegel(); ++sash) {
    for (const long kind : {1L, 2L, 3L}) {
      for (long i = 0; i < window.GetFluegelAnzahlBauteile(kind, sash); ++i) {
        Keep(window.GetFluegelBauteilUmriss(kind, sash, i, -1, polygon, length, start, end));
      }
    }
  }
}

Work Outlines(const std::string& name) {
  return [window = std::make_shared<CFeApi>(Example(name))] { FetchOutlines(*window); };
}

Work HiddenLines(const std::string& name) {
  return [window = std::make_shared<CFeApi>(Example(name))] {
    std::vector<CMStrecke> lines;
    Require(window->GetFensterPtr()->GetHiddenLineBild(lines, false), "hidden lines");
  };
}

Work Write(const std::string& name) {
  return [window = std::make_shared<CFeApi>(Example(name))] {
    long length = 0;
    char* buffer = nullptr;
    window->WriteToBuffer(&length, &buffer);
    Require(buffer != nullptr, "write");
    window->FreeBuffer(&buffer);
  };
}

Work Svg(const std::string& name) {
  return [window = std::make_shared<CFeApi>(Example(name))] {
    const drawing::Scene scene = drawing::BuildScene(*window);
    const auto status = drawing::WritePicture(scene, drawing::PictureFormat::kSvg, "/dev/null");
    Require(status == drawing::PictureStatus::kOk, "SVG");
  };
}

Work WholeCycle(const std::string& name) {
  const CFeApi example = Example(name);
  return [path = ExamplePath(name), width = example.GetFensterBreite() * 1.1,
          height = example.GetFensterHoehe() * 1.1] {
    CFeApi window;
    Require(window.ReadFromFile(path.c_str()) && window.SetBreiteHoehe({}, width, height) &&
                window.Berechne(),
            "cycle");
    FetchOutlines(window);
  };
}

}  // namespace

void AddWindowRows(std::vector<Row>& rows) {
  for (const std::string name : kExamples) {
    const long components = ComponentCount(Example(name));
    const auto add = [&](const char* operation, auto work, long units = 1) {
      rows.push_back(
          {std::string(operation) + "/" + name, [=] { return Work(work(name)); }, units});
    };
    add("parse from memory", ParseMemory);
    add("parse from file", ParseFile);
    add("calculate", Calculate);
    add(
        "fit and calculate", [](const std::string& n) { return Fitting(n); }, components);
    add("all outlines", Outlines);
    add("hidden lines", HiddenLines);
    add("write", Write);
    add("SVG", Svg);
    add("whole cycle", WholeCycle);
  }
}

}  // namespace lintavo::bench
