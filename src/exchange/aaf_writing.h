// Clients as a file in the Astrological Exchange Format.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"
#include "exchange/exchange_import.h"

namespace orvex::exchange {

// The clients with these ids, in their order, in UTF-8 with CRLF; an id that is gone has none, one
// that comes again is written once. What the format has no place for, a horary number with its
// question and an Ascendant by hand, goes into a line of comments; e-mail, mobile number and group
// stay out. Nothing where `progress` canceled.
std::optional<std::string> ClientsAsAaf(const core::Session& session,
                                        const std::vector<std::int32_t>& clientIds,
                                        const ExchangeProgress& progress);

// The clients of a list whose rows have their ids as tags.
std::vector<std::int32_t> ClientIdsOf(const core::Table& list);

// Writes ClientsAsAaf to a file of the rights 0600, beside first and then renamed; canceled,
// nothing is written. Refused where the file can't be written.
std::optional<core::Refusal> ExportAaf(const core::Session& session,
                                       const std::vector<std::int32_t>& clientIds,
                                       const std::filesystem::path& file,
                                       const ExchangeProgress& progress);

}  // namespace orvex::exchange
