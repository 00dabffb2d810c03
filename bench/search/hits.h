#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <utility>
#include <vector>

/// The hits of one search, headword and meanings, kept in the same way whoever found them.
class Hits final {
  public:
    void add(QByteArrayView headword, QByteArrayView meanings) {
        all_.emplace_back(headword.toByteArray(), meanings.toByteArray());
    }

    [[nodiscard]] std::vector<std::pair<QByteArray, QByteArray>> &all() { return all_; }

  private:
    std::vector<std::pair<QByteArray, QByteArray>> all_;
};
