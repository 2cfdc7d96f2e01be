#!/usr/bin/python3
"""Write the sample drawings beside this file. The same run gives the same bytes, on any day."""
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import ezdxf  # noqa: E402

from generator import office_floor, office_standard, site_plan, workshop  # noqa: E402
from generator.drafting import save  # noqa: E402

SAMPLES = (  # name, maker, encoding, line end
    ("office-floor.dxf", office_floor.make, "utf-8", "\r\n"),
    ("office-standard.dxf", office_standard.make, "utf-8", "\r\n"),
    ("workshop-gbk.dxf", workshop.make, "gbk", "\r\n"),
    ("site-plan.dxf", site_plan.make, "cp1252", "\n"),
)


if __name__ == "__main__":
    ezdxf.options.write_fixed_meta_data_for_testing = True
    for name, make, encoding, line_end in SAMPLES:
        save(make(), Path(__file__).resolve().parent / name, encoding, line_end)
