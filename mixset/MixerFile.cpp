#include "MixerFile.h"

#include <charconv>
#include <vector>

namespace {

constexpr std::string_view Header = "nightreel-mixer-profile 1";
constexpr std::string_view None = "-";

// Bytes that stand for themselves in a field; blanks and line ends never do.
bool IsPlain(unsigned char c)
{
    return c > 0x20 && c < 0x7f && c != '%';
}

std::string Escape(const std::string& text)
{
    if (text.empty())
        return std::string(None);
    if (text == None)
        return "%2D";
    static constexpr char Hex[] = "0123456789ABCDEF";
    std::string field;
    for (const unsigned char c : text) {
        if (IsPlain(c)) {
            field += char(c);
        } else {
            field += '%';
            field += Hex[c >> 4];
            field += Hex[c & 15];
        }
    }
    return field;
}

template <typename Number> bool ParseNumber(std::string_view field, Number& value, int base = 10)
{
    const char* end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, value, base);
    return error == std::errc() && stop == end;
}

std::optional<std::string> Unescape(std::string_view field)
{
    if (field == None)
        return std::string();
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const unsigned char c = field[i];
        if (c == '%') {
            unsigned char byte = 0;
            if (i + 2 >= field.size() || !ParseNumber(field.substr(i + 1, 2), byte, 16))
                return std::nullopt;
            text += char(byte);
            i += 2;
        } else if (IsPlain(c)) {
            text += char(c);
        } else {
            return std::nullopt;
        }
    }
    return text;
}

std::vector<std::string_view> SplitFields(std::string_view line)
{
    std::vector<std::string_view> fields;
    for (std::size_t start = 0;;) {
        const std::size_t blank = line.find(' ', start);
        fields.push_back(line.substr(start, blank - start));
        if (blank == std::string_view::npos)
            return fields;
        start = blank + 1;
    }
}

std::string FormatDevice(std::string_view keyword, const MixerState::Device& device)
{
    char map[PA_CHANNEL_MAP_SNPRINT_MAX];
    pa_channel_map_snprint(map, sizeof map, &device.ChannelMap);
    std::string line = std::string(keyword) + ' ' + Escape(device.Name) + ' ' + map + ' ' +
                       Escape(device.Port) + (device.Mute ? " 1" : " 0");
    for (unsigned i = 0; i < device.Volume.channels; ++i)
        line += ' ' + std::to_string(device.Volume.values[i]);
    return line + '\n';
}

// <name> <channel map> <port> <mute> <volume>...
std::optional<MixerState::Device> ParseDevice(const std::vector<std::string_view>& fields)
{
    if (fields.size() < 6)
        return std::nullopt;
    MixerState::Device device;
    const auto name = Unescape(fields[1]);
    const auto port = Unescape(fields[3]);
    if (!name || name->empty() || !port ||
        !pa_channel_map_parse(&device.ChannelMap, std::string(fields[2]).c_str()) ||
        fields.size() - 5 != device.ChannelMap.channels || (fields[4] != "0" && fields[4] != "1"))
        return std::nullopt;
    device.Name = *name;
    device.Port = *port;
    device.Mute = fields[4] == "1";
    device.Volume.channels = device.ChannelMap.channels;
    for (unsigned i = 0; i < device.Volume.channels; ++i) {
        if (!ParseNumber(fields[5 + i], device.Volume.values[i]) ||
            !PA_VOLUME_IS_VALID(device.Volume.values[i]))
            return std::nullopt;
    }
    return device;
}

} // namespace

std::string FormatMixerProfile(const MixerState& state)
{
    std::string text = std::string(Header) + '\n';
    for (const MixerState::Card& card : state.Cards)
        text += "card " + Escape(card.Name) + ' ' + Escape(card.Profile) + '\n';
    for (const MixerState::Device& sink : state.Sinks)
        text += FormatDevice("sink", sink);
    for (const MixerState::Device& source : state.Sources)
        text += FormatDevice("source", source);
    text += "default-sink " + Escape(state.DefaultSink) + '\n';
    text += "default-source " + Escape(state.DefaultSource) + '\n';
    return text;
}

std::optional<MixerState> ParseMixerProfile(std::string_view text)
{
    const std::size_t headerEnd = text.find('\n');
    if (text.substr(0, headerEnd) != Header)
        return std::nullopt;
    MixerState state;
    std::size_t start = headerEnd;
    while (start != std::string_view::npos && start + 1 < text.size()) {
        const std::size_t end = text.find('\n', start + 1);
        const std::string_view line = text.substr(start + 1, end - start - 1);
        start = end;
        if (line.empty())
            continue;
        const std::vector<std::string_view> fields = SplitFields(line);
        const std::string_view keyword = fields[0];
        if (keyword == "sink" || keyword == "source") {
            auto device = ParseDevice(fields);
            if (!device)
                return std::nullopt;
            (keyword == "sink" ? state.Sinks : state.Sources).push_back(std::move(*device));
            continue;
        }
        std::vector<std::string> values;
        for (std::size_t i = 1; i < fields.size(); ++i) {
            auto value = Unescape(fields[i]);
            if (!value)
                return std::nullopt;
            values.push_back(std::move(*value));
        }
        if (keyword == "card" && values.size() == 2 && !values[0].empty())
            state.Cards.push_back({values[0], values[1]});
        else if (keyword == "default-sink" && values.size() == 1)
            state.DefaultSink = values[0];
        else if (keyword == "default-source" && values.size() == 1)
            state.DefaultSource = values[0];
        else
            return std::nullopt;
    }
    return state;
}
