#!/usr/bin/env python3
"""Writes the bill of materials of an installed package as SPDX 2.3: its files with their hashes, and the headers whose
inline functions are compiled into them. SOURCE_DATE_EPOCH, if it is set, is the time that the list tells.
"""
import argparse
import datetime
import hashlib
import json
import os
import re
from pathlib import Path

LICENSE = "Apache-2.0"
# SPDX asks for the first; the second is what to rely on.
ALGORITHMS = ("SHA1", "SHA256")


def hash_of(algorithm, data):
    return hashlib.new(algorithm, data).hexdigest()


def file_entry(number, file, root):
    data = file.read_bytes()
    return {"SPDXID": f"SPDXRef-File-{number}", "fileName": f"./{file.relative_to(root)}",
            "checksums": [{"algorithm": name, "checksumValue": hash_of(name, data)} for name in ALGORITHMS],
            "licenseConcluded": LICENSE, "copyrightText": "NOASSERTION"}


def package_entry(name, version, **more):
    return {"SPDXID": f"SPDXRef-{name}", "name": name, "versionInfo": version, "downloadLocation": "NOASSERTION",
            "filesAnalyzed": False, "licenseConcluded": LICENSE, "licenseDeclared": LICENSE,
            "copyrightText": "NOASSERTION", **more}


def verification_code(files):
    return hash_of("SHA1", "".join(sorted(file["checksums"][0]["checksumValue"] for file in files)).encode())


def highway_version(headers):
    text = (headers / "hwy" / "highway.h").read_text()
    return ".".join(re.search(rf"#define HWY_{part} (\d+)", text).group(1) for part in ("MAJOR", "MINOR", "PATCH"))


def relationship(one, kind, other):
    return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}


def document(options):
    # Links are other names of files that are listed.
    found = sorted(file for file in options.root.rglob("*") if file.is_file() and not file.is_symlink())
    files = [file_entry(number, file, options.root) for number, file in enumerate(found) if file != options.out]
    code = verification_code(files)
    own = options.out.relative_to(options.root)
    product = package_entry(options.name, options.version, filesAnalyzed=True, hasFiles=[file["SPDXID"] for file in files],
                            packageVerificationCode={"packageVerificationCodeValue": code,
                                                     "packageVerificationCodeExcludedFiles": [f"./{own}"]})
    highway = package_entry("highway", highway_version(options.highway))
    seconds = int(os.environ.get("SOURCE_DATE_EPOCH", datetime.datetime.now().timestamp()))
    created = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    return {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"{options.name}-{options.version}",
        "documentNamespace": f"https://qvpip.example/spdx/{options.name}-{options.version}-{code}",
        "creationInfo": {"created": created, "creators": ["Organization: qvpIP maintainers"]},
        "packages": [product, highway], "files": files,
        "relationships": [relationship("SPDXRef-DOCUMENT", "DESCRIBES", product["SPDXID"]),
                          relationship(highway["SPDXID"], "BUILD_DEPENDENCY_OF", product["SPDXID"])],
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--name", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--highway", type=Path, required=True, help="the folder that its headers are in")
    parser.add_argument("--root", type=Path, required=True, help="where the package's files are, all of them")
    parser.add_argument("--out", type=Path, required=True)
    options = parser.parse_args()
    options.out.parent.mkdir(parents=True, exist_ok=True)
    options.out.write_text(json.dumps(document(options), indent=1) + "\n")


if __name__ == "__main__":
    main()
