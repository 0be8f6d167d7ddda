//==== the shared stream ====


//top d
//


// (legal notice)




//stage HELD=1 d en q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg7i1
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   [3:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [3:0]  keep;

	assign
		keep = 4'b1110,
		q = ((d & keep) ^ {4{en}});
endmodule //top_mg7i1


//stage HELD=2 d en q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg8i1
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   [3:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [3:0]  keep;

	assign
		keep = 4'b1101,
		q = ((d & keep) ^ {4{en}});
endmodule //top_mg8i1

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;

	top_mg7i1   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	top_mg8i1   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	assign
		q = wire_s2_q;
endmodule //top
