// What is told of a client beside the list: read at a glance, without opening the horoscope.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::horoscope {

// A running period of one level.
struct CardPeriod {
  std::string Level;  // "Dasha"
  std::string Planet;
  std::string End;   // "5 Nov 2030"
  double Share = 0;  // of it that is over, 0 to 1
};

struct ClientCard {
  std::string Birth;     // "5 July 1990 02:30 PM · Mumbai (GMT 5.5)"
  std::string Person;    // "F, 36 years 4 months · Created On 12 January 2026"; a query has no age
  std::string Question;  // of a query
  std::string Ascendant;  // "Libra"
  std::string Moon;       // "Jyeshtha, Pada 1"
  // From the Dasha down to the Sookshma. None for one older than 120 years or not yet born.
  std::vector<CardPeriod> Periods;
  std::string Comments;
  std::string Mobile;
  std::string Email;
  chart::HoroscopeModel Model;
};

// The card of a client today; nothing where there is no such client. The sun texts of the session
// stay as they were.
std::optional<ClientCard> CardOf(core::Session& session, std::int32_t clientId);

// The age in whole calendar years and months, "36 years 4 months"; below one month in days. "" for
// a birth that is still to come.
std::string AgeInWords(core::DateTime birth, core::DateTime today);

}  // namespace orvex::horoscope
