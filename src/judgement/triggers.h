// When moving bodies pass through spans whose three lords all belong to a set.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "chart/rotation.h"
#include "core/session.h"
#include "core/table.h"
#include "exact/crossings.h"
#include "exact/exact_zodiac.h"

namespace orvex::judgement {

// The bodies that may trigger.
inline constexpr std::array<exact::Point, 8> kTriggerBodies = {
    exact::Point::Sun,     exact::Point::Moon,  exact::Point::Mars,   exact::Point::Mercury,
    exact::Point::Jupiter, exact::Point::Venus, exact::Point::Saturn, exact::Point::Ascendant};

struct TriggerSearch {
  std::vector<exact::Point> Bodies;   // each once
  std::set<std::string> Lords;        // names of planets
  core::DateTime From{};              // UT
  core::DateTime To{};                // UT
  exact::Place Where;                 // for the Ascendant
  std::chrono::seconds Offset{};      // of the clock that the table shows
  std::optional<astro::Cusps> Natal;  // the cusps of a client
};

// The stored cusps of a client, from the tables of its birth.
astro::Cusps NatalCusps(const chart::BirthTables& birth);

enum class TriggerColumn { Body, From, Until, SignLord, StarLord, SubLord, House };

// The spans of the bodies down to the sub in which the lords of sign, star and sub all belong to
// the set, ordered by From, within one moment by body in the order given. Spans that touch stay
// apart. House: the natal house in which the body stands at From; empty without natal cusps.
core::Table BuildTriggers(core::Session& session, const TriggerSearch& search);

// The same, piece by piece, so that a window stays alive over a long search and may give it up.
class TriggerRun {
 public:
  // The session outlives the run.
  TriggerRun(core::Session& session, TriggerSearch search);
  ~TriggerRun();
  TriggerRun(const TriggerRun&) = delete;
  TriggerRun& operator=(const TriggerRun&) = delete;

  bool Done() const { return body_ >= search_.Bodies.size(); }

  // Goes on by a piece of one body's way, a few milliseconds of work. Nothing where it is done.
  void Step();

  // How much is done, 0 to 1.
  double Part() const;

  // The table of what is found; complete when it is done.
  core::Table Table() const;

 private:
  struct Trigger {
    std::size_t Body = 0;  // its place in the search
    exact::Crossing Span;
  };

  void NextBody();
  void Take(exact::Crossing span);

  core::Session& session_;
  TriggerSearch search_;
  exact::ExactZodiac zodiac_;
  std::size_t body_ = 0;
  core::DateTime reached_{};             // of the present body
  std::optional<exact::Crossing> open_;  // the span that the next piece may go on with
  std::vector<Trigger> found_;
};

}  // namespace orvex::judgement
