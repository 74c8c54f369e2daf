"""The checks by name, the quick ones first. A check takes the project and returns a list of problems."""

from checks import (comments, compiled, documents, formatting, includes, levels, lockfiles, pages,
                    portable, scripts, tidy, words)

CHECKS = {
    "levels": levels.check_levels,
    "links": levels.check_links,
    "standard-only": includes.check_standard_only,
    "include-circle": includes.check_no_circle,
    "portable": portable.check,
    "words": words.check,
    "comments": comments.check,
    "documents": documents.check,
    "lockfiles": lockfiles.check,
    "scripts": scripts.check,
    "formatting": formatting.check,
    "warnings": compiled.check,
    "pages": pages.check,
    "clang-tidy": tidy.check,
}
