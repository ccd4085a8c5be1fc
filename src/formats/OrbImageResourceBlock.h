#pragma once
// One Photoshop image resource block: signature ("8BIM"), 16-bit id,
// optional Pascal name and the resource data.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class OrbImageResourceBlock {
 public:
  // Signature 0, id 0, no name, no data.
  OrbImageResourceBlock() = default;
  OrbImageResourceBlock(std::uint32_t signature, std::uint16_t irbID, std::optional<std::string> name,
                        std::optional<std::vector<std::uint8_t>> dataValue);

  std::uint32_t signature() const { return signature_; }
  void setSignature(std::uint32_t signature) { signature_ = signature; }
  std::uint16_t irbID() const { return irbID_; }
  void setIrbID(std::uint16_t irbID) { irbID_ = irbID; }
  // The name's bytes as read (ASCII in practice); nullopt for an empty name.
  const std::optional<std::string>& name() const { return name_; }
  void setName(std::optional<std::string> name);
  // The data without its size field and pad byte; nullopt for none.
  const std::optional<std::vector<std::uint8_t>>& dataValue() const { return dataValue_; }
  void setDataValue(std::optional<std::vector<std::uint8_t>> dataValue) { dataValue_ = std::move(dataValue); }

  // "Resolution Info" and so on; "Unknown" for ids without a title.
  static std::string titleWithID(std::uint16_t irbID);
  std::string title() const { return titleWithID(irbID_); }
  // A one-line description of the data.
  std::string stringValue() const;

  // Signature, id, name field (even length), data size, data, pad byte.
  std::vector<std::uint8_t> data() const;

  // Same id, name and data; the signature is deliberately not compared.
  bool isEqualToIRB(const OrbImageResourceBlock& other) const;
  // By id alone: -1, 0 or 1.
  int compare(const OrbImageResourceBlock& other) const;

 private:
  std::optional<std::string> name_;
  std::optional<std::vector<std::uint8_t>> dataValue_;
  std::uint32_t signature_ = 0;
  std::uint16_t irbID_ = 0;
};
