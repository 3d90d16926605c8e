// SPDX-License-Identifier: MIT
import { serve } from "./serve";

serve(Promise.reject(new Error("no engine is built in")));
