// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FreedElsewhere.h"

#include "Platform/Walking/ReaderPool.h"

namespace Korvane {

namespace {

class Freeing final : public ReaderJob {
public:
    explicit Freeing(std::shared_ptr<void> value)
        : m_value(std::move(value))
    {
    }
    void help() override { m_value.reset(); }

private:
    std::shared_ptr<void> m_value;
};

} // namespace

void freeElsewhere(std::shared_ptr<void> value)
{
    ReaderPool::shared().invite(std::make_shared<Freeing>(std::move(value)));
}

} // namespace Korvane
