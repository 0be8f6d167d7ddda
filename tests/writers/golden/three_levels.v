//==== top.v ====
//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//pair HELD=1 d q
//


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
module  top_mgc71
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
endmodule //top_mgc71


//pair HELD=2 d q
//


//stage HELD=3 d en q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg9i1
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
		keep = 4'b1100,
		q = ((d & keep) ^ {4{en}});
endmodule //top_mg9i1

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgd71
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;

	top_mg8i1   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	top_mg9i1   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	assign
		q = wire_s2_q;
endmodule //top_mgd71

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

	wire  [3:0]   wire_p1_q;
	wire  [3:0]   wire_p2_q;

	top_mgc71   p1
	( 
	.d(d),
	.q(wire_p1_q));
	top_mgd71   p2
	( 
	.d(wire_p1_q),
	.q(wire_p2_q));
	assign
		q = wire_p2_q;
endmodule //top
//VALID FILE
