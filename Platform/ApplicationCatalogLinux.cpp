// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ApplicationCatalog.h"

#include "Platform/Applications/AppImages.h"
#include "Platform/Applications/BundleAround.h"
#include "Platform/Applications/Flatpaks.h"

#include <iterator>
#include <system_error>

namespace Korvane {

namespace {

class LinuxApplicationCatalog final : public ApplicationCatalog {
public:
    LinuxApplicationCatalog(const Environment& environment, const std::vector<std::filesystem::path>& programFolders)
        : m_environment(environment)
        , m_flatpaks(environment, programFolders)
    {
    }

    std::filesystem::path mainBundle() const override
    {
        std::error_code error;
        return bundleAround(std::filesystem::read_symlink("/proc/self/exe", error));
    }

    std::vector<HostApplication> additionalApplications(const Cancellation& cancellation) const override
    {
        auto applications = installedAppImages(m_environment, cancellation);
        auto flatpaks = m_flatpaks.installed(cancellation);
        applications.insert(
            applications.end(), std::make_move_iterator(flatpaks.begin()), std::make_move_iterator(flatpaks.end()));
        return applications;
    }

    void uninstall(const HostApplication& application, const Cancellation& cancellation) const override
    {
        m_flatpaks.uninstall(application, cancellation);
    }

private:
    Environment m_environment;
    Flatpaks m_flatpaks;
};

} // namespace

std::shared_ptr<ApplicationCatalog> makeApplicationCatalog(
    const Environment& environment, const std::vector<std::filesystem::path>& programFolders)
{
    return std::make_shared<LinuxApplicationCatalog>(environment, programFolders);
}

} // namespace Korvane
