// SPDX-License-Identifier: MIT
// The preset tool, from the operator database to the texts of the files: it succeeds or says what is wrong.

#include "FuzzFolder.h"
#include "OperatorDatabase.h"
#include "OperatorIndex.h"
#include "PresetCatalogue.h"
#include "PresetError.h"
#include "PresetFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const FuzzFolder folder;
    const QString file = folder.path("operators.xml");
    FuzzFolder::write(file, data, size);
    try {
        QStringList warnings;
        const PresetCatalogue catalogue = buildCatalogue(readOperatorDatabase(file, &warnings), {"Taken"});
        const QString library = folder.path("library.prof");
        const QByteArray written = PresetFiles::profileFile(catalogue.profiles);
        FuzzFolder::write(library, reinterpret_cast<const uint8_t*>(written.constData()), size_t(written.size()));
        require(PresetFiles::readProfiles(library).size() == catalogue.profiles.size());
        QXmlStreamReader reader;
        OperatorIndex index;
        index.read(PresetFiles::operatorFile(catalogue.operators), &reader);
        require(!reader.hasError() && index.operators().size() == catalogue.operators.size());
    } catch (const PresetError& error) {
        require(*error.what() != 0);
    }
    return 0;
}
