// The Debian package that CPack makes: what it holds and asks for, put in and taken out again.

#include "tests/support/programs.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

/// The package, made anew, and a folder that stands for the root of a machine without packages.
class CPackage {
public:
    CPackage() {
        Do("mkdir -p '" + m_strRoot + "'/var/lib/dpkg/info '" + m_strRoot + "'/var/lib/dpkg/updates");
        m_build.Folder().Write("machine/var/lib/dpkg/status", "");
        // Packing well takes longer than all the rest.
        Do("DPKG_DEB_COMPRESSOR_TYPE=none cpack -G DEB --config " TERVO_BUILD "/CPackConfig.cmake -B '" +
           m_build.Folder().Path() + "'");
    }

    /// Runs a command, which must succeed; $ROOT is the machine's root, $DEB the package.
    std::string Do(const std::string& strCommand) const {
        const CRun run = m_build.Shell("ROOT='" + m_strRoot + "'; DEB='" + m_strFile + "'; " + strCommand);
        EXPECT_EQ(run.m_nStatus, 0) << strCommand << "\n" << run.m_strErrors;
        return run.m_strOut;
    }
    void Dpkg(const std::string& strArguments) const {
        Do("PATH=$PATH:/usr/sbin:/sbin fakeroot dpkg --log=/dev/null --force-depends --root=\"$ROOT\" " +
           strArguments);
    }

private:
    CProgram m_build;
    std::string m_strRoot = m_build.Folder().Path("machine");
    std::string m_strFile =
        m_build.Folder().Path("tervo_" TERVO_VERSION "_" +
                              m_build.Shell("dpkg --print-architecture | tr -d '\\n'").m_strOut + ".deb");
};

void ExpectContents(const CPackage& package) {
    const std::string strContents = package.Do("dpkg-deb --contents \"$DEB\"");
    for (const char* const pFile :
         {"usr/bin/tvcad", "usr/bin/tvdata", "usr/lib/tervo/tervo-bren.so", "usr/share/man/man1/tvcad.1.gz",
          "usr/share/man/man1/tvdata.1.gz", "usr/share/applications/tvcad.desktop",
          "usr/share/doc/tervo/copyright", "usr/share/doc/tervo/changelog.gz",
          "usr/share/doc/tervo/examples/draw-demo"})
        EXPECT_NE(strContents.find(std::string(" ./") + pFile + "\n"), std::string::npos) << pFile;
}

void ExpectNeeds(const CPackage& package) {
    const std::string strDepends = package.Do("dpkg-deb --field \"$DEB\" Depends");
    for (const char* const pPackage : {"fonts-arphic-gbsn00lp", "fonts-babelstone-han", "libqt6widgets6",
                                       "libsqlite3-0", "libodbc2", "libexpat1", "libc6"})
        EXPECT_NE(strDepends.find(pPackage), std::string::npos) << strDepends;
    EXPECT_NE(package.Do("dpkg-deb --field \"$DEB\" Recommends").find("odbc-postgresql"), std::string::npos);
}

} // namespace

TEST(DebianPackage, IsPutInWithWhatItHoldsAndTakenOutWithoutATrace) {
    const CPackage package;
    ExpectContents(package);
    ExpectNeeds(package);
    EXPECT_EQ(package.Do("dpkg-deb --ctrl-tarfile \"$DEB\" | tar t | sort"), "./\n./control\n./md5sums\n")
        << "nothing is to run at installation";

    package.Dpkg("--install \"$DEB\"");
    const std::string strCommands = package.Do("echo COMMANDS | \"$ROOT/usr/bin/tvcad\" -q -s -");
    EXPECT_NE(strCommands.find("BREN BREN"), std::string::npos) << strCommands;
    EXPECT_EQ(package.Do("\"$ROOT/usr/bin/tvdata\" --version"), "tvdata " TERVO_VERSION "\n");
    package.Dpkg("--purge tervo");
    EXPECT_EQ(package.Do("cd \"$ROOT\" && find . -path ./var/lib/dpkg -prune -o -print"),
              ".\n./var\n./var/lib\n");
}

TEST(DebianPackage, HasItsVersionInItsChangelog) {
    std::string strFirst;
    std::getline(std::ifstream(TERVO_SOURCE "/packaging/debian/changelog"), strFirst);
    EXPECT_EQ(strFirst, "tervo (" TERVO_VERSION ") unstable; urgency=medium");
}
