#include "check/Fixes.h"

#include "check/Edits.h"
#include "check/Observed.h"
#include "check/Words.h"

#include <algorithm>
#include <set>

using Texts::Lower;

namespace {

// Beyond this many, fixes that don't go together are not tried one by one.
constexpr size_t MostSingles = 100;

// A finding without its place: lines move.
using Mark = std::tuple<Rules::Id, Text, Text, Text>;

Mark MarkOf(const Finding& finding) {
  return {finding.rule, finding.file, finding.section, finding.key};
}

using Marks = std::multiset<Mark>;

Marks MarksOf(const std::vector<Finding>& findings) {
  Marks marks;
  for (const Finding& finding : findings)
    if (finding.severity != Rules::Severity::Note)
      marks.insert(MarkOf(finding));
  return marks;
}

Text Bare(TextView key) {
  return Lower(Words::Decoded(ProfileLines::Strip(Words::Encoded(key), ProfileLines::Blanks)));
}

// What the fix of a finding may change.
class Scope {
 public:
  explicit Scope(const Finding& finding) : finding_(&finding), section_(Lower(finding.section)) {
    for (const Edit& edit : finding.edits)
      if (edit.bytes.starts_with('[') && edit.bytes.ends_with(']'))
        written_ = Lower(Words::Decoded(edit.bytes.substr(1, edit.bytes.size() - 2)));
    if (!finding.source || finding.rule != Rules::Id::S03)
      return;
    // An indented header takes its lines out of the list above it.
    for (const Source::Line& line : finding.source->Lines())
      if (finding.source->Offset(line.text.raw) == finding.offset && line.listedIn != Source::None)
        above_ = Lower(Words::Decoded(finding.source->Sections()[line.listedIn].name));
  }

  [[nodiscard]] bool Holds(const Text& file, const Text& section) const {
    if (file != finding_->file)
      return false;
    const Text lower = Lower(section);
    return section_.empty() || lower == section_ || (!above_.empty() && lower == above_) ||
           (!written_.empty() && lower == written_);
  }

  [[nodiscard]] bool Holds(const Sight& sight) const {
    if (!Holds(sight.file, sight.section))
      return finding_->rule == Rules::Id::F01 && HasLetter(sight.key);
    if (!finding_->isSafe || finding_->key.empty())
      return true;
    return Bare(sight.key) == Bare(finding_->key);
  }

 private:
  // Names that a code page can spoil.
  static bool HasLetter(const Text& key) {
    return std::ranges::any_of(key, [](char16_t unit) { return unit >= 0x80; });
  }

  const Finding* finding_;
  Text section_;
  Text above_;
  // The name that the fix gives to the section.
  Text written_;
};

// The fixes of one file that are tried together.
class Trial {
 public:
  Trial(const Check::Question& question, const Source& source, const Observed& before,
        const Marks& marks)
      : question_(question), source_(source), before_(before), marks_(marks) {}

  [[nodiscard]] bool Holds(const std::vector<const Finding*>& fixes) const {
    Check::Question after = question_;
    after.select.clear();
    after.ignore.clear();
    after.assumed = {{source_.path, Edits::Applied(source_, EditsOf(fixes))}};
    const auto answer = Check::Run(after);
    std::vector<Scope> scopes;
    scopes.reserve(fixes.size());
    for (const Finding* fix : fixes)
      scopes.emplace_back(*fix);
    return OnlyKnown(answer->findings, scopes) && AreGone(answer->findings, fixes) &&
           IsSeenAlike(Observe(answer->index), scopes);
  }

  [[nodiscard]] static std::vector<Edit> EditsOf(const std::vector<const Finding*>& fixes) {
    std::vector<Edit> edits;
    for (const Finding* fix : fixes)
      edits.insert(edits.end(), fix->edits.begin(), fix->edits.end());
    return edits;
  }

 private:
  // No mistake that was not there, but for those that the fixed ones had hidden.
  [[nodiscard]] bool OnlyKnown(const std::vector<Finding>& findings,
                               const std::vector<Scope>& scopes) const {
    Marks left = marks_;
    return std::ranges::all_of(findings, [&](const Finding& finding) {
      if (finding.severity == Rules::Severity::Note)
        return true;
      const auto known = left.find(MarkOf(finding));
      if (known != left.end()) {
        left.erase(known);
        return true;
      }
      return !IsOfTwoSections(finding.rule) &&
             std::ranges::any_of(scopes, [&finding](const Scope& scope) {
               return scope.Holds(finding.file, finding.section);
             });
    });
  }

  // What a fix can bring about in its own section.
  [[nodiscard]] static bool IsOfTwoSections(Rules::Id rule) {
    return rule == Rules::Id::S04 || rule == Rules::Id::S05;
  }

  [[nodiscard]] bool AreGone(const std::vector<Finding>& findings,
                             const std::vector<const Finding*>& fixes) const {
    const auto count = [&findings](const Mark& mark) {
      return static_cast<size_t>(std::ranges::count_if(
          findings, [&mark](const Finding& finding) { return MarkOf(finding) == mark; }));
    };
    std::map<Mark, size_t> gone;
    for (const Finding* fix : fixes)
      ++gone[MarkOf(*fix)];
    return std::ranges::all_of(gone, [&](const auto& entry) {
      const size_t before = marks_.count(entry.first);
      return count(entry.first) + entry.second <= std::max(before, entry.second);
    });
  }

  [[nodiscard]] bool IsSeenAlike(const Observed& after, const std::vector<Scope>& scopes) const {
    const auto isNamed = [&scopes](const Sight& sight) {
      return std::ranges::any_of(scopes,
                                 [&sight](const Scope& scope) { return scope.Holds(sight); });
    };
    const auto isKept = [&isNamed](const Observed& one, const Observed& other) {
      return std::ranges::all_of(one, [&](const auto& entry) {
        const auto found = other.find(entry.first);
        // What is told of a name comes and goes with it.
        const bool same =
            found == other.end() ? entry.first.isOfName : found->second == entry.second;
        return same || isNamed(entry.first);
      });
    };
    return isKept(before_, after) && isKept(after, before_);
  }

  const Check::Question& question_;
  const Source& source_;
  const Observed& before_;
  const Marks& marks_;
};

bool Overlap(const Edit& a, const Edit& b) {
  return a.offset < b.offset + std::max<size_t>(b.length, 1) &&
         b.offset < a.offset + std::max<size_t>(a.length, 1);
}

bool Overlaps(const Finding& finding, const std::vector<const Finding*>& others) {
  return std::ranges::any_of(others, [&finding](const Finding* other) {
    return std::ranges::any_of(finding.edits, [other](const Edit& edit) {
      return std::ranges::any_of(other->edits,
                                 [&edit](const Edit& taken) { return Overlap(edit, taken); });
    });
  });
}

std::vector<const Finding*> CandidatesOf(const Check::Answer& answer, const Source& source,
                                         bool unsafe) {
  std::vector<const Finding*> candidates;
  for (const Finding& finding : answer.findings) {
    const bool proved = Rules::Of(finding.rule).fixing == Rules::Fixing::Proved;
    if (!finding.edits.empty() && finding.edits.front().source == &source &&
        (finding.isSafe || proved || unsafe) && !Overlaps(finding, candidates))
      candidates.push_back(&finding);
  }
  return candidates;
}

std::vector<const Finding*> Proved(const Trial& trial, std::vector<const Finding*> candidates) {
  if (trial.Holds(candidates))
    return candidates;
  std::vector<const Finding*> proved;
  candidates.resize(std::min(candidates.size(), MostSingles));
  for (const Finding* candidate : candidates) {
    proved.push_back(candidate);
    if (!trial.Holds(proved))
      proved.pop_back();
  }
  return proved;
}

}  // namespace

std::vector<Fixes::Change> Fixes::Plan(const Check::Question& question, Check::Answer& answer,
                                       bool unsafe) {
  Check::Question whole = question;
  whole.select.clear();
  whole.ignore.clear();
  const Marks marks = MarksOf(Check::Run(whole)->findings);
  const Observed before = Observe(answer.index);
  std::vector<Change> changes;
  for (const Source& source : answer.index.sources) {
    auto candidates = CandidatesOf(answer, source, unsafe);
    if (candidates.empty())
      continue;
    const Trial trial(question, source, before, marks);
    auto edits = Trial::EditsOf(Proved(trial, std::move(candidates)));
    if (edits.empty())
      continue;
    std::string bytes = Edits::Applied(source, edits);
    changes.push_back({&source, std::move(edits), std::move(bytes)});
  }
  return changes;
}
