#pragma once

#include <QHash>

#include "forms/form_reader.h"

using namespace Qt::StringLiterals;

/// Knows the forms that it is told.
class FakeFormReader final : public alakelemző {
  public:
    void add(const QString &form, const olvasat &reading) { readings_[form].push_back(reading); }

    [[nodiscard]] std::vector<olvasat> olvasatok(const QString &alak) override {
        ++asked;
        return readings_.value(alak);
    }
    [[nodiscard]] QStringList hiányok() override { return missing; }
    [[nodiscard]] QString sor(const QString &alak, const olvasat &olvasat) const override {
        return alak + u" = "_s + olvasat.alapalak + u" + "_s + olvasat.magyarázat;
    }

    int asked = 0;
    QStringList missing;

  private:
    QHash<QString, std::vector<olvasat>> readings_;
};
